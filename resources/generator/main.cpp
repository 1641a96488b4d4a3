// Draws the sample picture anew: `pixano-scene FILE.jpg`. Knows nothing of what is in it.
#include "scene.h"

#include <QGuiApplication>
#include <QImageWriter>

#include <iostream>

int main(int argc, char* argv[])
{
    constexpr int Quality = 94;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: pixano-scene FILE.jpg\n";
        return 2;
    }
    QImageWriter writer(QString::fromLocal8Bit(argv[1]), "jpg");
    writer.setQuality(Quality);
    writer.setOptimizedWrite(true);
    if (!writer.write(pixano::art::Scene())) {
        std::cerr << "pixano-scene: cannot write " << argv[1] << '\n';
        return 1;
    }
    return 0;
}
