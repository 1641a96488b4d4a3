#include "shell/captions.h"

namespace pixano {
namespace {

QString WithSize(const Session& s, const QString& name)
{
    return QString("%1   %2x%3").arg(name).arg(s.work.Larg).arg(s.work.Alt);
}

}  // namespace

QString EffectCaption(const Session& s)
{
    return WithSize(s, s.doc.Effetto);
}

QString PictureCaption(const Session& s)
{
    return WithSize(s, s.doc.NomeCorto);
}

QString PreviewCaption(const Session& s, double zoom)
{
    constexpr int SignificantDigits = 15;
    constexpr double Percent = 100;
    const QString scale = QString::number(zoom * Percent, 'g', SignificantDigits);
    return s.doc.NomeCorto + QString("  (%1 x %2) - ").arg(s.work.Larg).arg(s.work.Alt) + scale +
           '%';
}

}  // namespace pixano
