// How files look in the file dialogs, in Italian and without reading any of them. Knows no picture.
#pragma once

#include <QFileIconProvider>
#include <QIcon>
#include <QIdentityProxyModel>

namespace pixano {

/// Icons and kinds by a file's name and kind alone: some files of the system never end, or block.
class FileLooks : public QFileIconProvider {
  public:
    FileLooks();

    QIcon icon(const QFileInfo& info) const override;
    QIcon icon(IconType type) const override;
    QString type(const QFileInfo& info) const override;

  private:
    QIcon folder_;
    QIcon file_;
};

/// Sizes and dates as they are written in Italian, whatever the system's locale is.
class ItalianFiles : public QIdentityProxyModel {
    Q_OBJECT

  public:
    using QIdentityProxyModel::QIdentityProxyModel;

    QVariant data(const QModelIndex& index, int role) const override;
};

}  // namespace pixano
