#include "windows/file_looks.h"

#include <QApplication>
#include <QDateTime>
#include <QFileSystemModel>
#include <QLocale>
#include <QStyle>

namespace pixano {
namespace {

enum Column { NameColumn, SizeColumn, KindColumn, DateColumn };

}  // namespace

FileLooks::FileLooks()
    : folder_(QApplication::style()->standardIcon(QStyle::SP_DirIcon)),
      file_(QApplication::style()->standardIcon(QStyle::SP_FileIcon))
{
}

QIcon FileLooks::icon(const QFileInfo& info) const
{
    return info.isDir() ? folder_ : file_;
}

QIcon FileLooks::icon(IconType type) const
{
    return type == File ? file_ : folder_;
}

QString FileLooks::type(const QFileInfo& info) const
{
    if (info.isDir()) return "Cartella";
    const QString ending = info.suffix().toLower();
    if (ending == "bmp") return "Immagine BMP";
    if (ending == "jpg" || ending == "jpeg") return "Immagine JPEG";
    if (ending == "gif") return "Immagine GIF";
    return ending.isEmpty() ? QString("File") : "File " + ending.toUpper();
}

QVariant ItalianFiles::data(const QModelIndex& index, int role) const
{
    const auto* const files = qobject_cast<const QFileSystemModel*>(sourceModel());
    if (role != Qt::DisplayRole || files == nullptr) return QIdentityProxyModel::data(index, role);
    const QLocale italian;
    const QModelIndex file = mapToSource(index);
    if (index.column() == SizeColumn && !files->isDir(file))
        return italian.formattedDataSize(files->size(file));
    if (index.column() == DateColumn)
        return italian.toString(files->lastModified(file), QLocale::ShortFormat);
    return QIdentityProxyModel::data(index, role);
}

}  // namespace pixano
