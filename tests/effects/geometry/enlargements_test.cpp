// The enlargements of a half, a quarter or the middle: what they paint.
#include "effects/geometry/mapped.h"
#include "support/journal_store.h"

namespace pixano::test {
namespace {

struct Enlarged {
    const char* name;
    void (*effect)(Work&);
    Letters even;  ///< of abcd efgh ijkl mnop
    Letters odd;   ///< of abcde fghij klmno pqrst uvwxy
};

// Of the odd picture the second halves start at 2.5, which reads pixel 2. "Centro" reads 1 to 3 of
// both: Int(4 / 4) to Int(4 - 1), Int(5 / 4) to Int(5 - 1.25).
const std::vector<Enlarged> Enlargements{
    {"Top", Top, {"abcd", "abcd", "efgh", "efgh"}, {"abcde", "abcde", "fghij", "fghij", "klmno"}},
    {"Bottom",
     Bottom,
     {"ijkl", "ijkl", "mnop", "mnop"},
     {"klmno", "klmno", "pqrst", "pqrst", "uvwxy"}},
    {"Sinistro",
     Sini,
     {"aabb", "eeff", "iijj", "mmnn"},
     {"aabbc", "ffggh", "kkllm", "ppqqr", "uuvvw"}},
    {"Destro",
     Destro,
     {"ccdd", "gghh", "kkll", "oopp"},
     {"ccdde", "hhiij", "mmnno", "rrsst", "wwxxy"}},
    {"Top Sinistro",
     Sintop,
     {"aabb", "aabb", "eeff", "eeff"},
     {"aabbc", "aabbc", "ffggh", "ffggh", "kkllm"}},
    {"Top Destro",
     Destop,
     {"ccdd", "ccdd", "gghh", "gghh"},
     {"ccdde", "ccdde", "hhiij", "hhiij", "mmnno"}},
    {"Bottom Sinistro",
     Sinbot,
     {"iijj", "iijj", "mmnn", "mmnn"},
     {"kkllm", "kkllm", "ppqqr", "ppqqr", "uuvvw"}},
    {"Bottom Destro",
     Desbot,
     {"kkll", "kkll", "oopp", "oopp"},
     {"mmnno", "mmnno", "rrsst", "rrsst", "wwxxy"}},
    {"Centro",
     Incentro,
     {"ffgg", "ffgg", "jjkk", "jjkk"},
     {"gghhi", "gghhi", "llmmn", "llmmn", "qqrrs"}},
};

TEST(Enlargements, FillTheCanvasWithTheRegionDoubled)
{
    for (const Enlarged& enlarged : Enlargements) {
        SCOPED_TRACE(enlarged.name);
        EffectRun run({"abcd", "efgh", "ijkl", "mnop"});
        EXPECT_EQ(run.Apply(enlarged.effect).Result(), enlarged.even);
        run.Load(Drawn({"abcde", "fghij", "klmno", "pqrst", "uvwxy"}));
        EXPECT_EQ(run.Apply(enlarged.effect).Result(), enlarged.odd);
    }
}

/// Where the place `at` of the result comes from, along one side.
using Along = int (*)(int at, int side);

int Same(int at, int /*side*/)
{
    return at;
}
int FromFirst(int at, int /*side*/)
{
    return at / 2;
}
int FromSecond(int at, int side)
{
    return side / 2 + at / 2;
}

struct Mapping {
    const char* name;
    void (*effect)(Work&);
    Along column;
    Along row;
};

const std::vector<Mapping> Mappings{
    {"Top", Top, Same, FromFirst},
    {"Bottom", Bottom, Same, FromSecond},
    {"Sinistro", Sini, FromFirst, Same},
    {"Destro", Destro, FromSecond, Same},
    {"Top Sinistro", Sintop, FromFirst, FromFirst},
    {"Top Destro", Destop, FromSecond, FromFirst},
    {"Bottom Sinistro", Sinbot, FromFirst, FromSecond},
    {"Bottom Destro", Desbot, FromSecond, FromSecond},
};

TEST(Enlargements, OfHalvesAndQuartersTakeEveryPixelFromItsPlace)
{
    for (const Mapping& mapping : Mappings) {
        SCOPED_TRACE(mapping.name);
        ExpectOnAllSizes(mapping.effect, [&](const Surface& old, int column, int row) {
            return old.Point(mapping.column(column, old.Width()), mapping.row(row, old.Height()));
        });
    }
}

/// The first place of the middle, and how many there are: Int(side / 4) to Int(side - side / 4).
struct Stretch {
    int first;
    int count;
};
Stretch MiddleOf(int side)
{
    const int first = side / 4;
    const int last = side - (side + 3) / 4;
    return {first, last - first + 1};
}

TEST(IngrCentro, TakesTheValuesOfTheMiddleStrictlyInSequence)
{
    ExpectOnAllSizes(Incentro, [](const Surface& old, int column, int row) {
        const int index = row / 2 * (old.Width() / 2 + 1) + column / 2;
        const Stretch columns = MiddleOf(old.Width());
        return old.Point(columns.first + index % columns.count,
                         MiddleOf(old.Height()).first + index / columns.count);
    });
}

// Five values a row are captured, columns 1 to 5, and four taken: i j k l, m p q r, s t w x, y z A
// D.
TEST(IngrCentro, ShearsAPictureWhoseWidthLeavesThree)
{
    EffectRun run({"abcdefg", "hijklmn", "opqrstu", "vwxyzAB", "CDEFGHI", "JKLMNOP", "QRSTUVW"});
    EXPECT_EQ(run.Apply(Incentro).Result(), (Letters{"iijjkkl", "iijjkkl", "mmppqqr", "mmppqqr",
                                                     "ssttwwx", "ssttwwx", "yyzzAAD"}));
}

TEST(Enlargements, CaptureBeforeTheWindowIsShown)
{
    for (const Enlarged& enlarged : Enlargements)
        EXPECT_EQ(JournalRun(Varied(7, 5)).Apply(enlarged.effect).diary,
                  (Diary{"create", "finish", "show", "open", "close", "kill"}))
            << enlarged.name;
}

TEST(Enlargements, KeepAPictureOfOneColour)
{
    for (const Enlarged& enlarged : Enlargements) {
        const Surface plain(11, 8, 0x336699);
        EXPECT_EQ(EffectRun(plain).Apply(enlarged.effect).work.Picture1, plain) << enlarged.name;
    }
}

TEST(Enlargements, KeepTheSizeInUse)
{
    for (const Enlarged& enlarged : Enlargements) {
        EffectRun run(Varied(7, 5));
        run.Apply(enlarged.effect);
        EXPECT_EQ(run.work.Larg, 7);
        EXPECT_EQ(run.work.Alt, 5);
    }
}

// Larg = Alt = 4 on a canvas of 5 x 5: the last column and row captured lie inside it, and so does
// the first of the last doubled pair.
TEST(Enlargements, ReachTheCanvasBeyondTheSizeInUse)
{
    const auto enlarged = [](void (*effect)(Work&)) {
        EffectRun run({"abcde", "fghij", "klmno", "pqrst", "uvwxy"});
        run.work.Larg = 4;
        run.work.Alt = 4;
        return run.Apply(effect).Result();
    };
    EXPECT_EQ(enlarged(Desbot), (Letters{"mmnno", "mmnno", "rrsst", "rrsst", "wwxxy"}));
    EXPECT_EQ(enlarged(Top), (Letters{"abcde", "abcde", "fghij", "fghij", "klmno"}));
    EXPECT_EQ(enlarged(Incentro), (Letters{"gghhi", "gghhi", "llmmn", "llmmn", "qqrrs"}));
}

}  // namespace
}  // namespace pixano::test
