#include "shell/program.h"

#include "canvas/fault.h"
#include "document/opening.h"
#include "document/places.h"
#include "document/recovery.h"
#include "files/system_reason.h"
#include "shell/answering.h"
#include "shell/application.h"
#include "shell/controls.h"
#include "shell/events.h"
#include "shell/only_instance.h"
#include "shell/options.h"
#include "shell/run.h"
#include "shell/second_start.h"
#include "shell/start_up.h"
#include "windows/file_names.h"
#include "windows/screen_dialogs.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QStandardPaths>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <string>

namespace pixano {
namespace {

/// A write beyond a size limit is an error like a full disk, not the end of the program.
void SurviveSizeLimits()
{
    std::signal(SIGXFSZ, SIG_IGN);
}

/// Started from the desktop's menu there is no folder that the user chose: the program works in its
/// data folder, and keeps the strengths there from one run to the next.
void WorkInDataFolder(Session& s)
{
    const QString folder = MakeDataFolder();
    const QString strengths = folder + '/' + file::Strengths;
    if (!QFile::exists(strengths) &&
        QFile::copy(s.programFolder + '/' + file::Strengths, strengths))
        QFile::setPermissions(strengths, QFile::ReadOwner | QFile::WriteOwner);
    GoToFolder(folder);
    s.programFolder = folder;
    s.doc.firstFolder = QStandardPaths::writableLocation(QStandardPaths::PicturesLocation);
}

/// What a run that was killed had not finished writing is no whole file.
void RemoveUnfinishedFiles(const QString& folder)
{
    const QDir files(folder, ".pixano-*.tmp", QDir::Unsorted, QDir::Files | QDir::Hidden);
    for (const QString& name : files.entryList())
        QFile::remove(files.filePath(name));
}

/// Opens the picture that the program was started with. What was brought back is unsaved: the
/// question what is to become of it would come as a surprise to somebody who has done nothing yet.
void OpenFirst(Session& s, const QString& picture)
{
    if (s.doc.Modificato == 1)
        s.dialogs.Tell(BoxIcon::None, title::Notice,
                       "L'immagine recuperata non è ancora stata salvata. Prima di aprire «" +
                           picture + "» Pixano chiede che cosa farne.");
    OpenNamed(s, picture);
}

/// The path of the picture to be opened, from the folder that the user is in; empty for none.
QString PictureIn(const Options& options)
{
    return options.picture.isEmpty() ? QString() : AbsolutePath(options.picture);
}

int RunSession(Session& session, const Options& options)
{
    ConnectEvents(session);
    // Relative to the folder that the user is in, whichever one the program works in.
    const QString picture = PictureIn(options);
    RunCommand(session, "Avvio", Fatal::All, [&] {
        if (options.fromMenu) WorkInDataFolder(session);
        Form_Load(session);
        // A picture that cannot be brought back is no reason not to start.
        RunWithinCommand(session, "Recupero", Fatal::None, [&] { OfferRecovery(session); });
    });
    if (!session.ending && !picture.isEmpty())
        RunCommand(session, "Apri", Fatal::None, [&] { OpenFirst(session, picture); });
    return session.ending ? *session.ending : QApplication::exec();
}

/// Gives the exit status.
int Answer(const char* text)
{
    if (std::fputs(text, stdout) >= 0 && std::fflush(stdout) == 0) return 0;
    const std::string reason = SystemReason(errno);
    std::fprintf(stderr, "Pixano: impossibile scrivere sullo standard output: %s.\n",
                 reason.c_str());
    return 1;
}

int TellUsage(const WrongArguments& wrong)
{
    std::fprintf(stderr, "Pixano: %s.\n\n%s", wrong.what(), UsageText);
    return 2;
}

int TellMissingScreen()
{
    std::fputs("Pixano: non c'è uno schermo (le variabili DISPLAY e "
               "WAYLAND_DISPLAY sono vuote). "
               "Senza finestre lavora pixano-batch.\n",
               stderr);
    return 1;
}

/// Gives the exit status. Throws WrongArguments.
int StartWithWindows(int argc, char* argv[])
{
    const QStringList arguments = ArgumentsOf(argc, argv);
    // Told before the application is made: the toolkit would end the program by a signal.
    if (ScreenIsMissing(arguments)) {
        OptionsFrom(arguments);
        return TellMissingScreen();
    }
    if (PrefersX(arguments)) qputenv("QT_QPA_PLATFORM", "xcb;wayland");
    QApplication application(argc, argv);
    PrepareApplication(application);
    // The toolkit has taken its own options away.
    const Options options = OptionsFrom(ArgumentsOf(argc, argv));
    ScreenDialogs dialogs;
    return RunOrTell(dialogs, options);
}

}  // namespace

int RunAsOnlyInstance(Session& session, const Options& options)
{
    const QString folder = MakeDataFolder();
    const OnlyInstance only(folder + "/pixano.lock");
    if (!only) {
        if (HandOver(folder, PictureIn(options))) return 0;
        session.dialogs.Tell(BoxIcon::Exclamation, title::Warning, "Pixano è già in esecuzione.");
        return 1;
    }
    RemoveUnfinishedFiles(folder);
    SecondStarts starts(folder);
    HearSecondStarts(session, starts);
    return RunSession(session, options);
}

int RunOrTell(Dialogs& dialogs, const Options& options)
{
    int status = 1;
    const std::optional<Fault> fault = ErrorOf([&] {
        Session session(dialogs, ProgramControls());
        status = RunAsOnlyInstance(session, options);
    });
    if (fault)
        dialogs.Tell(BoxIcon::Critical, title::Warning, QString::fromUtf8(fault->what()) + '.');
    return status;
}

int StartProgram(int argc, char* argv[])
{
    SurviveSizeLimits();
    // These answers need no screen, so they come before the application does.
    if (const char* const answer = AnswerWithoutScreen(argc, argv)) return Answer(answer);
    try {
        return StartWithWindows(argc, argv);
    } catch (const WrongArguments& wrong) {
        return TellUsage(wrong);
    }
}

}  // namespace pixano
