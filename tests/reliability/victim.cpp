// The windowed program with a random user inside, made to be killed: pixano-victim SEED COMMANDS.
// After so many commands it ends as a user ends it; with -1 it goes on for ever. What it does it
// tells on standard output, one line each, so that whoever kills it knows what must not be lost.
#include "reliability/checksum.h"
#include "reliability/difference.h"
#include "reliability/player.h"
#include "shell/application.h"
#include "shell/controls.h"
#include "shell/program.h"
#include "support/entries.h"

#include <QApplication>
#include <QTest>
#include <QTimer>

#include <cstdlib>
#include <iostream>
#include <memory>

namespace pixano::test {
namespace {

void Report(const std::string& line)
{
    std::cout << line << std::endl;
}

std::string OneLine(QString text)
{
    return text.replace('\n', ' ').toStdString();
}

/// Answers the offer to bring the last picture back; everything else as the player has planned it.
class VictimDialogs : public ScriptedDialogs {
  public:
    explicit VictimDialogs(std::uint64_t seed) : random_(seed) {}

    bool Ask(BoxIcon icon, const QString& title, const QString& text) override
    {
        if (!text.startsWith("L'ultima volta")) return ScriptedDialogs::Ask(icon, title, text);
        Report("offer " + OneLine(title) + ' ' + OneLine(text));
        const bool wanted = answer_.empty() ? random_() % 4 != 0 : answer_ == "yes";
        Report(wanted ? "wanted" : "unwanted");
        return wanted;
    }
    void Tell(BoxIcon icon, const QString& title, const QString& text) override
    {
        Report("told " + OneLine(text));
        if (starting) return;
        ScriptedDialogs::Tell(icon, title, text);
    }

    bool starting = true;

  private:
    std::mt19937_64 random_;
    /// What to answer whatever chance says.
    std::string answer_ = qEnvironmentVariable("PIXANO_ANSWER").toStdString();
};

class Victim {
  public:
    Victim(Session& session, VictimDialogs& dialogs, std::uint64_t seed, int commands)
        : session_(session), dialogs_(dialogs), player_(session, dialogs, seed), left_(commands)
    {
    }

    /// Goes on from event to event, so that the program's own loop runs.
    void Live()
    {
        QTimer::singleShot(0, [this] {
            QWidget* const modal = QApplication::activeModalWidget();
            if (modal != nullptr && modal->objectName() == "Form6")
                QTest::mouseClick(modal->findChild<QWidget*>("Picture1"), Qt::LeftButton);
            else if (!session_.busy)
                Step();
            if (!session_.ending) Live();
        });
    }

  private:
    void Step()
    {
        if (dialogs_.starting)
            Begin();
        else if (left_-- == 0)
            End();
        else
            Give();
    }

    void Begin()
    {
        dialogs_.starting = false;
        if (session_.doc.open)
            player_.model.BringBack(session_.doc.FileAperto.toStdString(), session_.work.Picture1);
        Report("ready" + State(session_.work.Picture1, session_.doc.Modificato == 1));
    }

    void Give()
    {
        const Player::Command command = player_.Next();
        Report("begin" + State(player_.model.Canvas(), player_.model.modified) + ' ' +
               command.text);
        command.give();
        Report("end" + State(session_.work.Picture1, session_.doc.Modificato == 1));
        if (!player_.ended && Checksum(session_.work.Picture1) != Checksum(player_.model.Canvas()))
            Report("wrong " + Difference(session_, player_.model));
    }

    void End()
    {
        Report("ending");
        if (player_.model.modified) dialogs_.answers.push_back(false);
        session_.form1.Control(entry::Esci - 1).trigger();
    }

    /// The picture, whether it has unsaved changes, and whether an effect left it half drawn.
    std::string State(const Surface& canvas, bool modified) const
    {
        return ' ' + Checksum(canvas) + (modified ? " modified" : " saved") +
               (player_.model.faulted ? " faulted" : " whole");
    }

    Session& session_;
    VictimDialogs& dialogs_;
    Player player_;
    int left_;
};

}  // namespace
}  // namespace pixano::test

int main(int argc, char* argv[])
{
    using namespace pixano;
    if (argc != 3) return 2;
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    PrepareApplication(application);
    const std::uint64_t seed = std::strtoull(argv[1], nullptr, 10);
    test::VictimDialogs dialogs(seed);
    Session session(dialogs, ProgramControls(), Timer(1));
    test::Victim victim(session, dialogs, seed, std::atoi(argv[2]));
    victim.Live();
    try {
        const int status = RunAsOnlyInstance(session, {});
        test::Report("over");
        return status;
    } catch (const Fault& fault) {
        test::Report(std::string("refused ") + fault.what());
        return 1;
    }
}
