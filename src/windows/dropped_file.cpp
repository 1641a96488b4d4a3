#include "windows/dropped_file.h"

#include "windows/file_names.h"

#include <QDropEvent>
#include <QMimeData>

namespace pixano {
namespace {

/// The path of the one local file that is being dragged; empty when it is anything else.
QString DraggedFile(const QDropEvent& event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 ? LocalFile(urls.front()) : QString();
}

/// Answers with a copy, or not at all.
bool TakeCopy(QDropEvent& event)
{
    const bool taken =
        event.possibleActions().testFlag(Qt::CopyAction) && !DraggedFile(event).isEmpty();
    event.setDropAction(Qt::CopyAction);
    event.setAccepted(taken);
    return taken;
}

}  // namespace

FileDrops::FileDrops(std::initializer_list<QWidget*> onto)
{
    for (QWidget* const widget : onto) {
        widget->setAcceptDrops(true);
        widget->installEventFilter(this);
    }
}

bool FileDrops::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::DragEnter:
    case QEvent::DragMove:
        TakeCopy(static_cast<QDropEvent&>(*event));
        return true;
    case QEvent::Drop:
        if (auto& drop = static_cast<QDropEvent&>(*event); TakeCopy(drop))
            emit Dropped(DraggedFile(drop));
        return true;
    default:
        return QObject::eventFilter(watched, event);
    }
}

}  // namespace pixano
