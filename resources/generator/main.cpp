// Draws the project's pictures anew: `pixano-art FOLDER`. Knows which file holds which drawing.
#include "drawings.h"
#include "picture_writer.h"

#include <QDir>
#include <QGuiApplication>

#include <exception>
#include <iostream>

namespace pixano::art {

namespace {

void DrawWindowPictures(const QDir& folder)
{
    WriteJpeg(Emblem(), folder.filePath("emblema.jpg"), 95);
    WriteJpeg(StartPicture(), folder.filePath("apertura.jpg"), 95);
    WriteJpeg(Scene(), folder.filePath("scena.jpg"), 94);
}

void DrawPalettePictures(const QDir& folder)
{
    WriteJpeg(Magnifier(Zooming::Enlarge), folder.filePath("ingrandisci.jpg"), 100);
    WriteJpeg(Magnifier(Zooming::Reduce), folder.filePath("riduci.jpg"), 100);
    WriteGif(Reflection(KeptHalf::Upper), folder.filePath("riflesso_superiore.gif"));
    WriteGif(Reflection(KeptHalf::Lower), folder.filePath("riflesso_inferiore.gif"));
}

void DrawIcons(const QDir& folder)
{
    folder.mkpath("icons");
    for (const int side : {16, 24, 32, 48, 64, 128, 256})
        WritePng(ApplicationIcon(side), folder.filePath(QString("icons/pixano-%1.png").arg(side)));
    WriteBytes(ApplicationIconSvg(), folder.filePath("pixano.svg"));
}

}  // namespace

}  // namespace pixano::art

int main(int argc, char* argv[])
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 2) {
        std::cerr << "usage: pixano-art FOLDER\n";
        return 2;
    }
    try {
        const QDir folder(QString::fromLocal8Bit(argv[1]));
        pixano::art::DrawWindowPictures(folder);
        pixano::art::DrawPalettePictures(folder);
        pixano::art::DrawIcons(folder);
    } catch (const std::exception& error) {
        std::cerr << "pixano-art: " << error.what() << '\n';
        return 1;
    }
    return 0;
}
