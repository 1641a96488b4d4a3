// The menu tree: every entry, in its order, as the user finds it before anything was opened.
#include "support/program.h"

#include <QMenu>
#include <QMenuBar>

namespace pixano::test {
namespace {

struct Row {
    const char* name;
    const char* caption;  ///< "-" for a separator
    const char* parent;   ///< "" for the menu bar
    bool off = false;
};

constexpr bool Off = true;

// clang-format off
const std::vector<Row> Expected{
    {"File", "&File", ""},
    {"Apri", "&Apri", "File"},
    {"Salva", "&Salva File", "File"},
    {"Meno", "-", "File"},
    {"Inbot", "Ingrandimento", "File"},
    {"Top", "Top", "Inbot"},
    {"Bottom", "Bottom", "Inbot"},
    {"Sini", "Sinistro", "Inbot"},
    {"Destro", "Destro", "Inbot"},
    {"Intop", "Ingrandim. &Top", "File"},
    {"Sintop", "Sinistro", "Intop"},
    {"Destop", "Destro", "Intop"},
    {"Ingrbot", "Ingrandim. &Bottom", "File"},
    {"Sinbot", "Sinistro", "Ingrbot"},
    {"Desbot", "Destro", "Ingrbot"},
    {"Incentro", "Ingrand. &Centro", "File"},
    {"Men", "-", "File"},
    {"rifver", "Riflesso &Verticale", "File"},
    {"Sinvert", "Sinistro", "rifver"},
    {"Desvert", "Destro", "rifver"},
    {"Rifor", "Riflesso & Orizzontale", "File"},
    {"Super", "Superiore", "Rifor"},
    {"Infer", "Inferiore", "Rifor"},
    {"Dopfoto", "&Doppia Foto", "File"},
    {"Vertdop", "Verticale", "Dopfoto"},
    {"Orizdop", "Orizzontale", "Dopfoto"},
    {"Rotaz", "&Rotazione 90\xC2\xB0 a...", "File"},
    {"Sinrot", "Sinistra", "Rotaz"},
    {"Desrot", "Destra", "Rotaz"},
    {"Invers", "I&nversione", "File"},
    {"Specchio", "Specchio", "Invers"},
    {"Capov", "Capovolgi", "Invers"},
    {"Multifoto", "&Multifoto", "File"},
    {"Menon", "-", "File"},
    {"Esci", "&Esci...", "File"},
    {"Effetti", "&Effetti", ""},
    {"MiniRnd", "&Mini Foto Rnd", "Effetti"},
    {"Mulstep", "Multi &Step", "Effetti"},
    {"Vertstep", "Verticale", "Mulstep"},
    {"Orizstep", "Orizzontale", "Mulstep"},
    {"MulStepRnd", "Def&ormazione", "Effetti"},
    {"Distors", "&Distorsione...", "Effetti"},
    {"DisUno", "1", "Distors"},
    {"DisDue", "2", "Distors"},
    {"Empir", "&Empireo...", "Effetti"},
    {"EmpUno", "1", "Empir"},
    {"EmpDue", "2", "Empir"},
    {"Fantas", "&Fantastic...", "Effetti"},
    {"FantUno", "1", "Fantas"},
    {"FantDue", "2", "Fantas"},
    {"Artistic", "&Artistico...", "Effetti"},
    {"ArtUno", "1", "Artistic"},
    {"ArtDue", "2", "Artistic"},
    {"ArTre", "3", "Artistic"},
    {"ArtQuat", "4", "Artistic"},
    {"ArtCinq", "5", "Artistic"},
    {"ArtSei", "6", "Artistic"},
    {"Undo", "&Annulla", "", Off},
    {"Orig", "&Originale", ""},
    {"Redo", "&Ripristina", "", Off},
    {"Inf", "&Inf.", ""},
    {"Inter", "?", ""},
};
// clang-format on

/// The entries of the menu called `parent`, or of the menu bar, from top to bottom.
std::vector<std::string> NamesUnder(Form1& window, const std::string& parent)
{
    const QWidget* const menu = parent.empty()
                                    ? static_cast<QWidget*>(window.menuBar())
                                    : window.findChild<QMenu*>(QString::fromStdString(parent));
    std::vector<std::string> names;
    for (const QAction* action : menu->actions())
        names.push_back(action->objectName().toStdString());
    return names;
}

class MenuTree : public UnstartedProgram {};

TEST_F(MenuTree, HasEveryEntryInItsOrder)
{
    ASSERT_EQ(MenuEntries().size(), Expected.size());
    for (int position = 0; position < EntryCount(); ++position) {
        const Row& row = Expected[static_cast<std::size_t>(position)];
        const QAction& action = session.form1.Control(position);
        EXPECT_EQ(action.objectName(), row.name);
        const bool separator = std::string(row.caption) == "-";
        EXPECT_EQ(action.isSeparator(), separator) << row.name;
        if (separator) continue;
        EXPECT_EQ(action.text(), QString::fromUtf8(row.caption));
    }
}

TEST_F(MenuTree, HangsEveryEntryUnderItsParentInOrder)
{
    std::vector<std::string> parents{""};
    for (const Row& row : Expected)
        parents.push_back(row.parent);
    for (const std::string& parent : parents) {
        std::vector<std::string> expected;
        for (const Row& row : Expected)
            if (row.parent == parent) expected.push_back(row.name);
        EXPECT_EQ(NamesUnder(session.form1, parent), expected) << "under " << parent;
    }
}

TEST_F(MenuTree, IsDesignedWithOnlyUndoAndRedoOff)
{
    for (int position = 0; position < EntryCount(); ++position) {
        const Row& row = Expected[static_cast<std::size_t>(position)];
        const QAction& action = session.form1.Control(position);
        EXPECT_EQ(action.isEnabled(), !row.off) << row.name;
        EXPECT_TRUE(action.isVisible()) << row.name;
        EXPECT_FALSE(action.isChecked()) << row.name;
    }
}

TEST_F(MenuTree, IsReachedByNameAtTheIndexOfTheEntry)
{
    EXPECT_EQ(session.form1.Control(entry::Apri - 1).objectName(), "Apri");
    EXPECT_EQ(session.form1.Control(entry::Salva - 1).objectName(), "Salva");
    EXPECT_EQ(session.form1.Control(entry::Esci - 1).objectName(), "Esci");
    EXPECT_EQ(session.form1.Control(entry::Undo - 1).objectName(), "Undo");
    EXPECT_EQ(session.form1.Control(entry::Orig - 1).objectName(), "Orig");
    EXPECT_EQ(session.form1.Control(entry::Redo - 1).objectName(), "Redo");
    EXPECT_EQ(session.form1.Control(entry::Inf - 1).objectName(), "Inf");
    EXPECT_EQ(session.form1.Control(entry::Inter - 1).objectName(), "Inter");
}

TEST_F(MenuTree, IsAllThatTheMainWindowHolds)
{
    EXPECT_EQ(session.form1.windowTitle(), "Pixano 2.3");
    EXPECT_EQ(session.form1.menuWidget(), session.form1.menuBar());
    EXPECT_EQ(session.form1.centralWidget(), nullptr);
    session.form1.show();
    EXPECT_EQ(session.form1.height(), session.form1.menuBar()->height());
    EXPECT_EQ(session.form1.minimumSize(), session.form1.maximumSize());
}

}  // namespace
}  // namespace pixano::test
