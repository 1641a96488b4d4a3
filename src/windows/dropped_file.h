// A file dropped onto a window.
#pragma once

#include "windows/file_names.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QString>

namespace pixano {

/// The path of the one local file that is being dropped; empty when it is anything else.
inline QString DroppedFile(const QDropEvent& event)
{
    const QList<QUrl> urls = event.mimeData()->urls();
    return urls.size() == 1 ? LocalFile(urls.front()) : QString();
}

/// Welcomes the drag when a file could be dropped.
inline void AcceptPictureDrag(QDragEnterEvent& event)
{
    if (!DroppedFile(event).isEmpty()) event.acceptProposedAction();
}

}  // namespace pixano
