#include "windows/file_dialog.h"

#include "windows/file_names.h"
#include "windows/free_screen.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QCompleter>
#include <QDir>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>

#include <unistd.h>

namespace pixano {
namespace {

/// The folder, or the nearest one above it that is still there.
QString ExistingFolder(const QString& folder)
{
    QString path = QDir().absoluteFilePath(folder);
    while (!QFileInfo(path).isDir() && path != QDir::rootPath())
        path = QFileInfo(path).path();
    return path;
}

/// Whether the toolkit has no answer to the name, because no file of its folder can have it.
bool IsTooLong(const QString& path)
{
    const QFileInfo file(path);
    const long longest = pathconf(FileBytes(file.path()).c_str(), _PC_NAME_MAX);
    return longest >= 0 && file.fileName().size() > longest;
}

}  // namespace

FileDialog::FileDialog(FileLooks& looks, const QString& title, const QString& folder)
    : QFileDialog(QApplication::activeWindow(), title)
{
    setObjectName("CommonDialog1");
    setIconProvider(&looks);
    setProxyModel(new ItalianFiles(this));
    // A name that does not exist may be typed: the program has its own message for it.
    setFileMode(QFileDialog::AnyFile);
    setDirectory(ExistingFolder(folder));
    QLineEdit& name = Name();
    // Whichever way a folder is entered: pressed, named, or from the list of places. What was
    // offered for the name goes with it.
    const auto forgetName = [&name] {
        name.clear();
        name.completer()->popup()->hide();
    };
    connect(findChild<QFileSystemModel*>(), &QFileSystemModel::rootPathChanged, &name, forgetName,
            Qt::QueuedConnection);
    name.completer()->popup()->installEventFilter(this);
}

QLineEdit& FileDialog::Name() const
{
    return *findChild<QLineEdit*>("fileNameEdit");
}

void FileDialog::BeginWith(const QString& name)
{
    Name().setText(name);
}

bool FileDialog::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::MouseButtonPress) {
        const auto& press = *static_cast<QMouseEvent*>(event);
        const QPoint place = press.globalPosition().toPoint();
        const bool beside = !static_cast<QWidget*>(watched)->geometry().contains(place);
        auto* const button = qobject_cast<QPushButton*>(childAt(mapFromGlobal(place)));
        if (press.button() == Qt::LeftButton && beside && button != nullptr)
            QTimer::singleShot(0, button, &QPushButton::click);
    }
    return QFileDialog::eventFilter(watched, event);
}

std::optional<QString> FileDialog::AskName()
{
    ShowWholeColumns();
    if (exec() != QDialog::Accepted) return std::nullopt;
    if (!typed_.isEmpty()) return typed_;
    const QStringList names = selectedFiles();
    if (names.isEmpty()) return std::nullopt;
    return names.front();
}

void FileDialog::accept()
{
    const QString text = Name().text();
    // Nobody sees such a name, nor finds it again.
    if (!text.isEmpty() && text.trimmed().isEmpty()) {
        Name().clear();
        return;
    }
    QString path = directory().absoluteFilePath(text);
    if (!defaultSuffix().isEmpty() && QFileInfo(path).suffix().isEmpty())
        path += '.' + defaultSuffix();
    // The toolkit takes quotation marks for those around several names.
    if (!text.contains('"') && !IsTooLong(path)) {
        QFileDialog::accept();
        return;
    }
    typed_ = path;
    // The toolkit's own answer is what is passed over.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    QDialog::accept();
}

/// The toolkit's own sizes cut the columns off, and are larger than a small screen.
void FileDialog::ShowWholeColumns()
{
    constexpr QSize Roomy(780, 460);
    resize(Roomy.boundedTo(LargestInside(*this)));
    auto* const header = findChild<QTreeView*>("treeView")->header();
    for (int column = 1; column < header->count(); ++column)
        header->setSectionResizeMode(column, QHeaderView::ResizeToContents);
}

}  // namespace pixano
