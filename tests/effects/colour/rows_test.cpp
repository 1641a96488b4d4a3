#include "effects/catalogue.h"
#include "effects/colour/colour.h"

#include <gtest/gtest.h>

#include <vector>

namespace pixano::test {
namespace {

struct Row {
    const char* name;
    void (*run)(Work&);
    int entry;
    int selector;
    Reseed reseed = Reseed::Never;
};

TEST(ColourRows, NameEachEffectWithWhatStartsIt)
{
    for (const Row& row : std::vector<Row>{
             {"Distorsione 1", DisUno, 43, 0, Reseed::BeforeEffect},
             {"Distorsione 2", DisDue, 44, 0, Reseed::BeforeEffect},
             {"Empireo 1", EmpUno, 46, 0},
             {"Empireo 2", EmpDue, 47, 0},
             {"Fantastic 1", FantUno, 49, 0},
             {"Fantastic 2", FantDue, 50, 0},
             {"Artistico 1", ArtUno, 52, 0},
             {"Artistico 2", ArtDue, 53, 0},
             {"Artistico 3", ArTre, 54, 0},
             {"Artistico 4", ArtQuat, 55, 0},
             {"Artistico 5", ArtCinq, 56, 0},
             {"Artistico 6", ArtSei, 57, 0},
             {"Negativo Artistico", Negativo, 0, 1},
             {"Colorazione", Colorazione, 0, 2},
             {"Vetro", Vetro, 0, 3},
             {"Foto Color Rnd", ColorRnd, 0, 4},
             {"Forbici", Forbici, 0, 5},
         }) {
        const Effect* const effect = FindEffect(row.name);
        ASSERT_NE(effect, nullptr) << row.name;
        EXPECT_EQ(effect->run, row.run) << row.name;
        EXPECT_EQ(effect->family, Family::Colours) << row.name;
        EXPECT_EQ(effect->entry, row.entry) << row.name;
        EXPECT_EQ(effect->selector, row.selector) << row.name;
        EXPECT_EQ(effect->reseed, row.reseed) << row.name;
        EXPECT_EQ(effect->closing, Closing::UnloadCaptionModified) << row.name;
        EXPECT_EQ(effect->faultEnds, FaultEnds::Command) << row.name;
    }
}

}  // namespace
}  // namespace pixano::test
