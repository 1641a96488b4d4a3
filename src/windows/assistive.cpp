#include "windows/assistive.h"

#include <QAccessibleWidget>
#include <QStringList>
#include <QWidget>

namespace pixano {
namespace {

/// A window whose name says what it is for, and whose title what it shows at the moment.
class TitledWindow : public QAccessibleWidget {
  public:
    explicit TitledWindow(QWidget* window) : QAccessibleWidget(window, QAccessible::Window) {}

    QString text(QAccessible::Text which) const override
    {
        QString text = QAccessibleWidget::text(which);
        const QString title = widget()->windowTitle().simplified();
        if (which == QAccessible::Name && !title.isEmpty() && title != text) text += ": " + title;
        return text;
    }
};

/// The toolkit asks by the name of the widget's class; it may ask before the widget has its place.
QAccessibleInterface* MakeInterface(const QString& className, QObject* object)
{
    static const QStringList pictures{"pixano::PictureBox", "pixano::ImageControl"};
    static const QStringList windows{"pixano::Form2", "pixano::Form4", "pixano::Form9",
                                     "pixano::Form10"};
    auto* const widget = qobject_cast<QWidget*>(object);
    if (widget == nullptr) return nullptr;
    if (pictures.contains(className)) return new QAccessibleWidget(widget, QAccessible::Graphic);
    if (windows.contains(className)) return new TitledWindow(widget);
    return nullptr;
}

}  // namespace

void TellAssistiveTools()
{
    QAccessible::installFactory(MakeInterface);
}

}  // namespace pixano
