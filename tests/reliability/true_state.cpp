#include "reliability/true_state.h"

#include "document/recovery_note.h"

#include <QProgressBar>
#include <QRegularExpression>

namespace pixano::test {
namespace {

bool Holds(const QString& path, const Surface& picture)
{
    try {
        return ReadWorkingPicture(path.toStdString()).picture == picture;
    } catch (const PictureError&) {
        return false;
    }
}

QString AllTold(const Desk& desk)
{
    QString all;
    for (const ShownBox& box : desk.dialogs.told)
        all += box.text + '\n';
    return all;
}

/// One of the files that the messages name holds the picture.
bool IsNamed(const Surface& picture, const QString& told)
{
    static const QRegularExpression path(R"(/[^\n»«]*\.(bmp|bml|tmp))");
    for (auto match = path.globalMatch(told); match.hasNext();)
        if (Holds(match.next().captured(), picture)) return true;
    return false;
}

/// Italian sentences, each with one full stop, which say everything once.
void ExpectGoodText(const QString& text)
{
    const std::string told = text.toStdString();
    EXPECT_TRUE(text.endsWith('.') || text.endsWith(" non trovato!")) << told;
    EXPECT_FALSE(text.contains("..")) << told;
    EXPECT_FALSE(text.contains(QChar(0x200b))) << told;
    EXPECT_LE(text.count("Impossibile accedere al file"), 0) << told;
    for (const QString& sentence : text.split("\n\n"))
        EXPECT_EQ(text.count(sentence), 1) << told;
}

/// What lies on the canvas differs from what was last opened or saved.
bool IsUnsaved(const Desk& desk)
{
    const Document& d = desk.session.doc;
    return d.open && !Holds(d.FileAperto, desk.Canvas()) &&
           !Holds(Folders::Path("salvata.bmp"), desk.Canvas());
}

/// The command's loops came to their end. (What they read they read to the end: one that could not
/// may have painted the last pixel all the same.)
bool IsFinished(const GivenCommand& command, const Before& before, const Desk& desk)
{
    static const QRegularExpression unread("leggere «[^»]*elab.ser»");
    return desk.Canvas() == Made(*command.effect, before.canvas) && !AllTold(desk).contains(unread);
}

void ExpectNothingLost(const GivenCommand& command, const Before& before, Desk& desk)
{
    const Surface& canvas = desk.Canvas();
    if (desk.session.ending) {
        // By an error, with work unsaved: the user knows where it is, or that it is nowhere.
        EXPECT_TRUE(desk.session.doc.Modificato == 0 || IsKept(canvas, before, desk) ||
                    IsKept(before.whole, before, desk) ||
                    (!before.room && AllTold(desk).contains("non è stato conservato")))
            << AllTold(desk).toStdString();
        return;
    }
    if (!IsUnsaved(desk)) return;
    const bool whole =
        command.effect != nullptr ? IsFinished(command, before, desk) : !command.halfDrawn;
    EXPECT_EQ(desk.session.doc.Modificato, whole || before.modified == 1 ? 1 : 0);
    if (desk.session.doc.Modificato == 0) return;
    EXPECT_TRUE(IsKept(canvas, before, desk) || (!whole && IsKept(before.whole, before, desk)))
        << AllTold(desk).toStdString();
}

bool Enabled(Desk& desk, int entry, const char* button)
{
    const bool on = desk.Enabled(entry);
    EXPECT_EQ(desk.Button(button).isEnabled(), on) << button;
    return on;
}

void ExpectWindowsAgree(Desk& desk)
{
    if (desk.session.doc.open) {
        Enabled(desk, entry::Undo, "SSCommand15");
        Enabled(desk, entry::Orig, "SSCommand16");
        Enabled(desk, entry::Redo, "SSCommand17");
    }
    EXPECT_EQ(desk.session.form10.cursor().shape(), Qt::ArrowCursor);
    const Form1& menus = desk.session.form1;
    for (int position = 0; const MenuEntry& entry : menus.Entries()) {
        const QAction& control = menus.Control(position++);
        if (entry.needs == Needs::Picture && control.objectName() != control::Salva) {
            EXPECT_EQ(control.isEnabled(), desk.session.doc.open) << control.text().toStdString();
        }
    }
    const Form4& progress = desk.session.form4;
    if (progress.isVisible()) return;
    EXPECT_EQ(progress.Bar(), 0);
    EXPECT_EQ(progress.windowTitle(), "");
}

void ExpectCaption(const GivenCommand& command, const Before& before, Desk& desk)
{
    QString caption = command.caption.value_or(before.caption);
    if (command.effect != nullptr) {
        if (IsFinished(command, before, desk) && command.effect->captioned)
            caption = NameOf(*command.effect) + "   64x48";
    } else if (!command.caption) {
        return;
    }
    EXPECT_EQ(desk.session.form2.windowTitle(), caption);
}

}  // namespace

Before::Before(Desk& desk, const Surface& lastWhole, bool roomForACopy)
    : whole(lastWhole),
      canvas(desk.Canvas()),
      caption(desk.session.form2.windowTitle()),
      modified(desk.session.doc.Modificato),
      room(roomForACopy)
{
}

bool IsKept(const Surface& picture, const Before& before, const Desk& desk)
{
    const QString told = AllTold(desk);
    if (IsNamed(picture, told)) return true;
    if (!before.room && told.contains("nessuna copia su disco")) return true;
    const std::optional<RecoveryNote> note = ReadRecoveryNote();
    return note && note->width == picture.Width() && note->height == picture.Height() &&
           Holds(note->copy, picture);
}

void ExpectTrueState(const GivenCommand& command, const Before& before, Desk& desk)
{
    EXPECT_LE(desk.dialogs.told.size(), command.messages) << AllTold(desk).toStdString();
    for (const ShownBox& box : desk.dialogs.told)
        ExpectGoodText(box.text);
    ExpectNothingLost(command, before, desk);
    if (desk.session.ending) return;
    ExpectWindowsAgree(desk);
    ExpectCaption(command, before, desk);
}

void ExpectTheRestWorks(Desk& desk)
{
    if (desk.session.ending) return;
    desk.dialogs.told.clear();
    if (!desk.session.doc.open) desk.Open(Folders::Path("a.bmp"));
    const Surface canvas = desk.Canvas();
    const Surface mirrored = Made(*FindEffect("Specchio"), canvas);
    const Surface opened = ReadPicture(desk.session.doc.FileAperto.toStdString()).picture;
    desk.Apply("Specchio");
    EXPECT_EQ(desk.Canvas(), mirrored);
    if (desk.Enabled(entry::Undo)) {
        desk.ClickEntry(entry::Undo);
        EXPECT_EQ(desk.Canvas(), canvas);
        desk.ClickEntry(entry::Redo);
        EXPECT_EQ(desk.Canvas(), mirrored);
    }
    desk.ClickEntry(entry::Orig);
    EXPECT_EQ(desk.Canvas(), opened);
    EXPECT_EQ(desk.session.doc.Modificato, 0);
    const QString another = Folders::Path("b.bmp");
    desk.Open(another);
    EXPECT_EQ(desk.Canvas(), ReadPicture(another.toStdString()).picture);
    EXPECT_EQ(AllTold(desk), "");
}

}  // namespace pixano::test
