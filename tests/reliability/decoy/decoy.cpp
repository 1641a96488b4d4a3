// A plug-in for pictures that nobody is to load: it tells that it was, in the file named by
// PIXANO_DECOY. Reads no picture.
#include <QImageIOHandler>

#include <cstdio>
#include <cstdlib>

namespace {

struct Tells {
    Tells()
    {
        const char* const name = std::getenv("PIXANO_DECOY");
        if (name == nullptr) return;
        if (std::FILE* const file = std::fopen(name, "ab")) {
            std::fputs("loaded\n", file);
            std::fclose(file);
        }
    }
} tells;

}  // namespace

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

#include "decoy.moc"
