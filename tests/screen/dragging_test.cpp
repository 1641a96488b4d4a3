// A file dragged from a file manager's window, by a real mouse, and dropped onto the program's.
#include "screen/desktop.h"

#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

namespace pixano::test {
namespace {

/// Offers its file as a file manager does: to be moved, unless whoever takes it asks for a copy.
class FileManager : public QWidget {
  public:
    explicit FileManager(const QString& path) : path_(path) { setGeometry(600, 700, 120, 120); }

    std::optional<Qt::DropAction> answer;
    Qt::DropActions offered = Qt::CopyAction | Qt::MoveAction | Qt::LinkAction;

  protected:
    void mouseMoveEvent(QMouseEvent* /*event*/) override
    {
        auto* const dragged = new QMimeData;
        dragged->setUrls({QUrl::fromLocalFile(path_)});
        auto* const drag = new QDrag(this);
        drag->setMimeData(dragged);
        // The hand lets go once it sees the file taken, or that nobody takes it.
        constexpr int Patience = 1500;
        constexpr int Rest = 100;
        QTimer::singleShot(Patience, drag, LetGo);
        QObject::connect(
            drag, &QDrag::actionChanged, drag, [drag] { QTimer::singleShot(Rest, drag, LetGo); },
            Qt::SingleShotConnection);
        answer = drag->exec(offered, Qt::MoveAction);
    }

  private:
    static void LetGo() { QProcess::startDetached("xdotool", {"mouseup", "1"}); }

    QString path_;
};

class Dragging : public Desktop {
  protected:
    static QString At(QPoint place) { return QString("%1 %2").arg(place.x()).arg(place.y()); }
    /// Drags from the one to the other, a small step first, as a hand does, and waits until
    /// it lets go.
    static void DragTo(FileManager& from, const QWidget& onto, QPoint place)
    {
        const QPoint start = from.mapToGlobal(from.rect().center());
        const QPoint end = onto.mapToGlobal(place);
        from.answer.reset();
        Do("mousemove " + At(start) + " mousedown 1 mousemove_relative 12 12 sleep 0.1 mousemove " +
           At(end));
        EXPECT_TRUE(ComesToHold([&] { return from.answer.has_value(); }));
    }
};

TEST_F(Dragging, CopiesAFileOntoEveryWindow)
{
    OpenSized(200, 150);
    FileManager manager(Made("b.bmp", Drawn({"xyz"})));
    manager.show();
    Activate(manager);
    for (QWidget* const window :
         {static_cast<QWidget*>(&session.form1), static_cast<QWidget*>(&session.form2),
          static_cast<QWidget*>(&session.form9), static_cast<QWidget*>(&session.form10)}) {
        Open("200x150.bmp", Varied(200, 150));
        WaitForWindows();
        EXPECT_TRUE(Stays([this] { return !session.form9.MovedByUser(); }));
        DragTo(manager, *window, {5, window->height() - 5});
        EXPECT_EQ(manager.answer, Qt::CopyAction) << window->objectName().toStdString();
        EXPECT_TRUE(ComesToHold([this] { return CanvasCaption() == "b.bmp   3x1"; }))
            << window->objectName().toStdString();
    }
}

TEST_F(Dragging, TakesNothingThatCanOnlyBeMoved)
{
    OpenSized(200, 150);
    FileManager manager(Made("b.bmp", Drawn({"xyz"})));
    manager.offered = Qt::MoveAction;
    manager.show();
    Activate(manager);
    DragTo(manager, session.form2, {20, 20});
    EXPECT_EQ(manager.answer, Qt::IgnoreAction);
    EXPECT_EQ(CanvasCaption(), "200x150.bmp   200x150");
}

}  // namespace
}  // namespace pixano::test
