// A plug-in for pictures that nobody is to load: it tells that it was, in the file named by
// PIXANO_DECOY. Reads no picture.
#pragma once

#include <QImageIOHandler>

class Decoy : public QImageIOPlugin {
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QImageIOHandlerFactoryInterface" FILE "decoy.json")

  public:
    Capabilities capabilities(QIODevice* /*device*/, const QByteArray& /*format*/) const override
    {
        return {};
    }
    QImageIOHandler* create(QIODevice* /*device*/, const QByteArray& /*format*/) const override
    {
        return nullptr;
    }
};
