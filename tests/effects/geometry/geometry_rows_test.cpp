// What the catalogue says about the effects that move pixels.
#include "effects/catalogue.h"
#include "effects/geometry/geometry.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

namespace pixano::test {
namespace {

struct Row {
    const char* name;
    void (*run)(Work&);
    int entry;
    Closing closing;
};

const std::vector<Row> Rows{
    {"Capovolgi", Capov, 32, Closing::UnloadCaptionModified},
    {"Specchio", Specchio, 31, Closing::UnloadCaptionModified},
    {"Capovolgi a Specchio", CapovSpec, 0, Closing::UnloadCaptionModified},
    {"Rotazione -90°", RotazMeno, 0, Closing::UnloadCaptionModified},
    {"Rotazione +90°", RotazPiu, 0, Closing::UnloadCaptionModified},
    {"Rifl. Vert. Sinistro", Sinvert, 19, Closing::ModifiedUnloadCaption},
    {"Rifl. Vert. Destro", Desvert, 20, Closing::ModifiedUnloadCaption},
    {"Rifl.o Oriz. Superiore", Super, 22, Closing::ModifiedUnloadCaption},
    {"Rifl. Oriz. Inferiore", Infer, 23, Closing::ModifiedUnloadCaption},
    {"Doppia Foto Verticale", Vertdop, 25, Closing::UnloadCaptionModified},
    {"Doppia Foto Orizzontale", Orizdop, 26, Closing::UnloadCaptionModified},
    {"Ingr. Top", Top, 6, Closing::ModifiedUnloadCaption},
    {"Ingr. Bottom", Bottom, 7, Closing::ModifiedUnloadCaption},
    {"Ingr. Sinistro", Sini, 8, Closing::ModifiedUnloadCaption},
    {"Ingr. Destro", Destro, 9, Closing::ModifiedUnloadCaption},
    {"Ingr. Top Sinistro", Sintop, 11, Closing::ModifiedUnloadCaption},
    {"Ingr. Top Destro", Destop, 12, Closing::ModifiedUnloadCaption},
    {"Ingr. Bottom Sinistro", Sinbot, 14, Closing::ModifiedUnloadCaption},
    {"Ingr. Bottom Destro", Desbot, 15, Closing::ModifiedUnloadCaption},
    {"Ingr. Centro", Incentro, 16, Closing::ModifiedUnloadCaption},
    {"Multifoto", Multifoto, 33, Closing::ModifiedUnloadCaption},
};

TEST(GeometryRows, NameTheEffectItsEntryAndItsClosing)
{
    for (const Row& row : Rows) {
        const Effect* const effect = FindEffect(row.name);
        ASSERT_NE(effect, nullptr) << row.name;
        EXPECT_EQ(effect->run, row.run) << row.name;
        EXPECT_EQ(effect->entry, row.entry) << row.name;
        EXPECT_EQ(effect->closing, row.closing) << row.name;
        EXPECT_EQ(effect->family, Family::Geometry) << row.name;
        if (row.entry == 0) continue;
        EXPECT_EQ(EffectOfEntry(row.entry), effect);
    }
}

TEST(GeometryRows, TakeNoStrengthAndNoRandomNumbersAndFaultsEndTheCommand)
{
    for (const Row& row : Rows) {
        const Effect* const effect = FindEffect(row.name);
        ASSERT_NE(effect, nullptr) << row.name;
        EXPECT_EQ(effect->selector, 0) << row.name;
        EXPECT_EQ(effect->reseed, Reseed::Never) << row.name;
        EXPECT_EQ(effect->faultEnds, FaultEnds::Command) << row.name;
    }
}

TEST(GeometryRows, AreAllOfTheFamily)
{
    EXPECT_EQ(std::ranges::count(Catalogue(), Family::Geometry, &Effect::family),
              static_cast<std::ptrdiff_t>(Rows.size()));
}

TEST(Catalogue, KnowsNoOtherNamesAndNoEntryZero)
{
    EXPECT_EQ(FindEffect("Specchi"), nullptr);
    EXPECT_EQ(FindEffect(""), nullptr);
    EXPECT_EQ(EffectOfEntry(0), nullptr);
    EXPECT_EQ(EffectOfEntry(28), nullptr);
}

}  // namespace
}  // namespace pixano::test
