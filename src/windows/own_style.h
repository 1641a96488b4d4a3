// The desktop's style with the program's own icons in message boxes, and no icons on buttons. Knows
// no box.
#pragma once

#include <QProxyStyle>

namespace pixano {

class OwnStyle : public QProxyStyle {
    Q_OBJECT

  public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* details) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option,
                       const QWidget* widget) const override;
};

}  // namespace pixano
