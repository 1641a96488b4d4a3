// Every kind of box that the program shows, as it really stands on the screen: its title, its text,
// its picture, its buttons, and what the return key means.
#include "support/modal_steps.h"
#include "support/program.h"
#include "windows/screen_dialogs.h"

#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>

namespace pixano::test {
namespace {

struct Box {
    QMessageBox::Icon icon;
    const char* title;
    QString text;
    QStringList buttons;  ///< from left to right or not: by name
};

void ExpectBox(const QDialog& dialog, const Box& expected)
{
    const auto* const box = qobject_cast<const QMessageBox*>(&dialog);
    ASSERT_NE(box, nullptr) << dialog.objectName().toStdString();
    EXPECT_EQ(box->icon(), expected.icon);
    EXPECT_EQ(box->windowTitle(), expected.title);
    EXPECT_EQ(box->text(), expected.text);
    QStringList buttons;
    for (const QAbstractButton* const button : box->buttons())
        buttons += button->text().remove('&');
    buttons.sort();
    EXPECT_EQ(buttons, expected.buttons) << expected.text.toStdString();
}

/// What the toolkit calls the answers in Italian.
const QStringList YesNo{"No", "Sì"};
const QStringList Ok{"OK"};

/// The program as it is sold: with real boxes and dialogs.
class RealBoxes : public testing::Test, protected Folders {
  protected:
    RealBoxes()
    {
        ForgetEarlierEnd();
        ConnectEvents(session);
        OnceStartUpPictureIsUp(ClickAway);
        RunCommand(session, "Avvio", Fatal::All, [&] { Form_Load(session); });
        SaveBitmap(Drawn({"abc"}), Path("a.bmp").toStdString());
        SaveBitmap(Drawn({"xy"}), Path("b.bmp").toStdString());
        {
            const ModalSteps steps({Name("a.bmp")});
            Click(entry::Apri);
        }
        RunCommand(session, "Specchio", Fatal::None,
                   [&] { RunEffect(session, *FindEffect("Specchio")); });
    }

    void Click(int index) { session.form1.Control(index - 1).trigger(); }
    /// Types the name into the file dialog.
    static ModalSteps::Step Name(const QString& name)
    {
        return [name](QDialog& dialog) {
            auto* const edit = dialog.findChild<QLineEdit*>("fileNameEdit");
            ASSERT_NE(edit, nullptr) << dialog.windowTitle().toStdString();
            edit->setText(name);
            QTest::keyClick(edit, Qt::Key_Return);
        };
    }
    static ModalSteps::Step Cancel()
    {
        return [](QDialog& dialog) {
            EXPECT_NE(qobject_cast<QFileDialog*>(&dialog), nullptr);
            dialog.reject();
        };
    }
    /// Compares the box, then presses the button of that name.
    static ModalSteps::Step Press(const QString& name, const Box& expected)
    {
        return [name, expected](QDialog& dialog) {
            ExpectBox(dialog, expected);
            for (QAbstractButton* const button : dialog.findChildren<QAbstractButton*>())
                if (button->text().remove('&') == name) return button->click();
            ADD_FAILURE() << "no button " << name.toStdString();
        };
    }
    static ModalSteps::Step Return(const Box& expected)
    {
        return [expected](QDialog& dialog) {
            ExpectBox(dialog, expected);
            QTest::keyClick(&dialog, Qt::Key_Return);
        };
    }
    static Box About(QMessageBox::Icon icon, const char* title)
    {
        return {icon, title, "Salvare i cambiamenti del file elaborato?", YesNo};
    }
    static Box Warning(const QString& text)
    {
        return {QMessageBox::Warning, "Attenzione!", text, Ok};
    }
    const Box Replace{QMessageBox::Warning, "Attenzione!",
                      "File " + Path("b.bmp") + " già esistente, sostituire i file?", YesNo};
    static bool Saved() { return QFileInfo::exists(Path("s.bmp")); }

    ScreenDialogs dialogs;
    Session session{dialogs, ProgramControls(), Timer(1)};
};

TEST_F(RealBoxes, AskBeforeAnotherPictureIsOpened)
{
    const ModalSteps steps(
        {Press("No", About(QMessageBox::Question, "Messaggio!")), Name("b.bmp")});
    Click(entry::Apri);
    EXPECT_EQ(session.doc.FileAperto, Path("b.bmp"));
}

TEST_F(RealBoxes, TakeTheReturnKeyForYesSoThatNoWorkIsLost)
{
    const ModalSteps steps(
        {Return(About(QMessageBox::Question, "Messaggio!")), Name("s.bmp"), Cancel()});
    Click(entry::Apri);
    EXPECT_TRUE(Saved());
}

TEST_F(RealBoxes, TellThatAFileDoesNotExistOrIsNoPicture)
{
    WriteBytes(Path("testo.bmp").toStdString(), "solo testo");
    Click(entry::Orig);
    {
        const ModalSteps steps(
            {Name("no.bmp"), Return(Warning("File " + Path("no.bmp") + " non trovato!"))});
        Click(entry::Apri);
    }
    const ModalSteps steps(
        {Name("testo.bmp"), Press("OK", Warning("Impossibile leggere «" + Path("testo.bmp") +
                                                "»: non è un'immagine BMP, JPEG o "
                                                "GIF."))});
    Click(entry::Apri);
}

TEST_F(RealBoxes, AskBeforeAFileIsReplaced)
{
    const ModalSteps steps({Name("b.bmp"), Press("No", Replace), Name("b.bmp"), Return(Replace)});
    Click(entry::Salva);
    EXPECT_EQ(session.doc.NomeSalvato, Path("b.bmp"));
}

TEST_F(RealBoxes, TellThatAPictureCannotBeSaved)
{
    const ModalSteps steps(
        {Name("manca/s.bmp"), Return(Warning("Impossibile salvare «" + Path("manca/s.bmp") +
                                             "»: la cartella non esiste."))});
    Click(entry::Salva);
    EXPECT_EQ(session.doc.Modificato, 1);
}

TEST_F(RealBoxes, AskWithoutIconAndTitleWhenAWindowOfThePictureIsClosed)
{
    for (QWidget* const window :
         {static_cast<QWidget*>(&session.form2), static_cast<QWidget*>(&session.form9)}) {
        session.doc.Modificato = 1;
        const ModalSteps steps({Press("No", About(QMessageBox::NoIcon, ""))});
        EXPECT_TRUE(window->close());
    }
}

TEST_F(RealBoxes, AskBeforeTheProgramEnds)
{
    const ModalSteps steps({Press("No", About(QMessageBox::Warning, "Avviso!"))});
    EXPECT_TRUE(session.form1.close());
    EXPECT_EQ(session.ending, 0);
}

TEST_F(RealBoxes, TellOfAnErrorWithItsCommand)
{
    QFile::remove(Data("temp.bml"));
    QDir().mkpath(Data("temp.bml"));
    const ModalSteps steps(
        {Return({QMessageBox::Critical, "Attenzione!",
                 "Errore durante il comando «Capovolgi»:\nImpossibile salvare «" +
                     Data("temp.bml") + "»: è una cartella.",
                 Ok})});
    session.form1.Control(31).trigger();
}

}  // namespace
}  // namespace pixano::test
