#include "shell/start.h"

#include "canvas/fault.h"
#include "shell/commands.h"
#include "shell/opening.h"
#include "shell/places.h"
#include "shell/screen_dialogs.h"
#include "shell/start_end.h"

#include <QApplication>
#include <QDir>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QLockFile>
#include <QTranslator>

#include <csignal>

namespace pixano {
namespace {

/// A write beyond a size limit is an error like a full disk, not the end of the program.
void SurviveSizeLimits()
{
    std::signal(SIGXFSZ, SIG_IGN);
}

QIcon ProgramIcon()
{
    QIcon icon;
    for (const int size : {16, 24, 32, 48, 64, 128, 256})
        icon.addFile(QString(":/pixano/icons/pixano-%1.png").arg(size));
    return icon;
}

int RunSession(ScreenDialogs& dialogs, const QStringList& arguments)
{
    Session session(dialogs);
    ConnectEvents(session);
    Run(session, "Avvio", FaultEnds::Program, [&] { Form_Load(session); });
    if (!session.ending && arguments.size() > 1) {
        const QString path = QDir().absoluteFilePath(arguments.at(1));
        Run(session, "Apri", FaultEnds::Command, [&] { OpenNamed(session, path); });
    }
    return session.ending ? *session.ending : QApplication::exec();
}

}  // namespace

void PrepareApplication(QApplication& application)
{
    QApplication::setApplicationName("pixano");
    QApplication::setApplicationVersion("2.3");
    QApplication::setQuitOnLastWindowClosed(false);
    QApplication::setWindowIcon(ProgramIcon());
    // Dialogs of the desktop would speak its language, whatever it is.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QLocale::setDefault(QLocale(QLocale::Italian, QLocale::Italy));
    auto* const italian = new QTranslator(&application);
    if (italian->load("qtbase_it", QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(italian);
}

int StartProgram(int argc, char* argv[])
{
    SurviveSizeLimits();
    QApplication application(argc, argv);
    PrepareApplication(application);
    ScreenDialogs dialogs;
    try {
        QLockFile lock(DataFolder() + "/pixano.lock");
        lock.setStaleLockTime(0);
        if (!lock.tryLock() && lock.error() != QLockFile::LockFailedError)
            throw Fault(FaultKind::FileAccess, lock.fileName().toStdString());
        if (!lock.isLocked()) {
            dialogs.Tell(BoxIcon::Exclamation, title::Warning, "Pixano è già in esecuzione.");
            return 1;
        }
        return RunSession(dialogs, QApplication::arguments());
    } catch (const Fault& fault) {
        dialogs.Tell(BoxIcon::Critical, title::Warning, QString::fromUtf8(fault.what()) + '.');
        return 1;
    }
}

}  // namespace pixano
