#include "document/captions.h"

namespace pixano {
namespace {

QString WithSize(const Session& s, const QString& name)
{
    // The name is put in front, not filled in: it may hold what looks like a place to be filled.
    return name + QString("   %1x%2").arg(s.work.Larg).arg(s.work.Alt);
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
