#include "windows/own_style.h"

#include <QIcon>

namespace pixano {
namespace {

/// At the size shown and at twice that.
QIcon Drawn(const QString& name)
{
    QIcon icon;
    for (const char* const size : {"", "@2x"})
        icon.addPixmap(QPixmap(":/pixano/icons/" + name + size + ".png"));
    return icon;
}

}  // namespace

int OwnStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                        QStyleHintReturn* details) const
{
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
    return QProxyStyle::styleHint(hint, option, widget, details);
}

int OwnStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                          const QWidget* widget) const
{
    constexpr int BoxIconSide = 48;
    if (metric == PM_MessageBoxIconSize) return BoxIconSide;
    return QProxyStyle::pixelMetric(metric, option, widget);
}

QIcon OwnStyle::standardIcon(StandardPixmap icon, const QStyleOption* option,
                             const QWidget* widget) const
{
    switch (icon) {
    case SP_MessageBoxQuestion:
        return Drawn("domanda");
    case SP_MessageBoxWarning:
        return Drawn("avviso");
    case SP_MessageBoxCritical:
        return Drawn("errore");
    default:
        return QProxyStyle::standardIcon(icon, option, widget);
    }
}

}  // namespace pixano
