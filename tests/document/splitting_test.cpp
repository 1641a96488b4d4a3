// A path split into name and folder: what the canvas is called, and where the next save starts.
#include "document/loading.h"
#include "support/program.h"

namespace pixano::test {
namespace {

struct Split {
    const char* path;
    const char* name;
    const char* folder;
};

class Splitting : public Program {
  protected:
    Splitting()
    {
        Open("a.bmp", Drawn({"abc"}));
        Apply("Specchio");
    }
};

TEST_F(Splitting, TakesWhatFollowsTheLastSeparatorForTheName)
{
    for (const auto& [path, name, folder] :
         {Split{"/figure/mare/onda.bmp", "onda.bmp", "/figure/mare/"},
          Split{"/onda.bmp", "onda.bmp", "/"}, Split{"onda.bmp", "onda.bmp", ""},
          Split{"c:\\figure\\onda.bmp", "onda.bmp", "c:\\figure\\"},
          Split{"/figure\\mare/onda.bmp", "onda.bmp", "/figure\\mare/"},
          Split{"/figure/mare\\onda.bmp", "onda.bmp", "/figure/mare\\"},
          Split{"/x/y", "y", "/x/"}}) {
        session.form1.Enable(control::Salva, true);
        Estrai(session, path, std::nullopt);
        EXPECT_EQ(session.doc.NomeCorto, name) << path;
        EXPECT_EQ(session.doc.Cartella, folder) << path;
        EXPECT_FALSE(Enabled(entry::Salva)) << path;
        EXPECT_EQ(CanvasLetters(), (Letters{"cba"})) << path;
    }
}

TEST_F(Splitting, StopsWhereThereIsNoName)
{
    const QString folder = session.doc.Cartella;
    for (const char* const path : {"/figure/", "/", "c:\\", ""}) {
        Estrai(session, path, Drawn({"xy"}));
        EXPECT_EQ(session.doc.NomeCorto, "") << path;
        EXPECT_EQ(session.doc.Cartella, folder) << path;
        EXPECT_EQ(CanvasLetters(), (Letters{"cba"})) << path;
        EXPECT_TRUE(Enabled(entry::Salva)) << path;
        EXPECT_EQ(MenuHistory(), (History{false, true, false})) << path;
    }
}

}  // namespace
}  // namespace pixano::test
