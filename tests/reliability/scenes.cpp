#include "reliability/scenes.h"

namespace pixano::test {

void MakeFiles(Desk& desk)
{
    WriteWorkingBitmap(Varied(EnoughForAll.width, EnoughForAll.height),
                       Folders::Path("a.bmp").toStdString());
    WriteWorkingBitmap(Varied(40, 30), Folders::Path("b.bmp").toStdString());
    WriteBytes(Folders::Path("valori.tip").toStdString(), "1\r\n2\r\n3\r\n4\r\n5\r\n");
    desk.session.programFolder = QDir::currentPath();
}

Surface Made(const Effect& effect, const Surface& picture)
{
    EffectRun run(picture);
    run.work.Valori.fill(StrengthForAll);
    run.Apply(effect);
    return run.work.Picture1;
}

void Reach(Scene scene, Desk& desk)
{
    MakeFiles(desk);
    ConnectEvents(desk.session);
    desk.Start();
    if (scene == Scene::Started) return;
    desk.Open(Folders::Path("a.bmp"));
    if (scene == Scene::Opened) return;
    desk.Apply("Specchio");
    desk.Apply("Capovolgi");
}

}  // namespace pixano::test
