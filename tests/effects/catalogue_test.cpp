// What the rows of the catalogue say.
#include "effects/catalogue.h"

#include "canvas/fault.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string_view>

namespace pixano::test {
namespace {

/// The effects as their users know them, and the functions that their tests call.
const std::map<std::string_view, void (*)(Work&)> Functions{
    {"Capovolgi", Capov},
    {"Specchio", Specchio},
    {"Capovolgi a Specchio", CapovSpec},
    {"Rotazione -90°", RotazMeno},
    {"Rotazione +90°", RotazPiu},
    {"Rifl. Vert. Sinistro", Sinvert},
    {"Rifl. Vert. Destro", Desvert},
    {"Rifl.o Oriz. Superiore", Super},
    {"Rifl. Oriz. Inferiore", Infer},
    {"Doppia Foto Verticale", Vertdop},
    {"Doppia Foto Orizzontale", Orizdop},
    {"Ingr. Top", Top},
    {"Ingr. Bottom", Bottom},
    {"Ingr. Sinistro", Sini},
    {"Ingr. Destro", Destro},
    {"Ingr. Top Sinistro", Sintop},
    {"Ingr. Top Destro", Destop},
    {"Ingr. Bottom Sinistro", Sinbot},
    {"Ingr. Bottom Destro", Desbot},
    {"Ingr. Centro", Incentro},
    {"Multifoto", Multifoto},
    {"Distorsione 1", DisUno},
    {"Distorsione 2", DisDue},
    {"Empireo 1", EmpUno},
    {"Empireo 2", EmpDue},
    {"Fantastic 1", FantUno},
    {"Fantastic 2", FantDue},
    {"Artistico 1", ArtUno},
    {"Artistico 2", ArtDue},
    {"Artistico 3", ArTre},
    {"Artistico 4", ArtQuat},
    {"Artistico 5", ArtCinq},
    {"Artistico 6", ArtSei},
    {"Negativo Artistico", Negativo},
    {"Colorazione", Colorazione},
    {"Vetro", Vetro},
    {"Foto Color Rnd", ColorRnd},
    {"Forbici", Forbici},
    {"Mini Foto Rnd", MiniRnd},
    {"Multi Step Verticale", Vertstep},
    {"Multi Step Orizzontale", Orizstep},
    {"MultiFoto Step", MultiFotoStep},
    {"Deformazione Casuale", MulStepRnd},
    {"Mix Verticale", MixVert},
    {"Mix Orizzontale", MixOriz},
    {"Mix Multifoto", MixMultif},
};

TEST(Catalogue, FindsEachEffectByItsName)
{
    for (const auto& [name, function] : Functions) {
        const Effect* const effect = FindEffect(name);
        ASSERT_NE(effect, nullptr) << name;
        EXPECT_EQ(effect->run, function) << name;
    }
    EXPECT_EQ(FindEffect("specchio"), nullptr);
    EXPECT_EQ(FindEffect(""), nullptr);
}

TEST(Catalogue, KeepsFamiliesTogether)
{
    EXPECT_TRUE(std::ranges::is_sorted(Effects, {}, &Effect::family));
}

/// The effects whose row says so.
template <typename Says>
std::set<std::string_view> NamesWhere(Says says)
{
    std::set<std::string_view> names;
    for (const Effect& effect : Effects)
        if (std::invoke(says, effect)) names.insert(effect.name);
    return names;
}

TEST(Catalogue, EndsTheProgramAtAnIndexOutsideTheMatrixInEight)
{
    EXPECT_EQ(NamesWhere([](const Effect& e) {
                  return EndsProgram(e.fatal, FaultKind::SubscriptOutOfRange);
              }),
              (std::set<std::string_view>{"Mini Foto Rnd", "Multi Step Verticale",
                                          "Multi Step Orizzontale", "MultiFoto Step",
                                          "Deformazione Casuale", "Mix Verticale",
                                          "Mix Orizzontale", "Mix Multifoto"}));
    EXPECT_EQ(
        NamesWhere([](const Effect& e) { return EndsProgram(e.fatal, FaultKind::DivisionByZero); }),
        (std::set<std::string_view>{"Deformazione Casuale"}));
}

TEST(Catalogue, EndsOnlyTheCommandAtEveryOtherFault)
{
    for (const auto kind : {FaultKind::Overflow, FaultKind::TypeMismatch, FaultKind::InputPastEnd,
                            FaultKind::FileNotFound, FaultKind::FileAccess, FaultKind::DiskFull,
                            FaultKind::InvalidCall, FaultKind::OutOfMemory})
        EXPECT_TRUE(
            NamesWhere([&](const Effect& e) { return EndsProgram(e.fatal, kind); }).empty());
}

TEST(Catalogue, LeavesTheCaptionToOneEffect)
{
    EXPECT_EQ(NamesWhere([](const Effect& e) { return !e.captioned; }),
              (std::set<std::string_view>{"Mini Foto Rnd"}));
}

TEST(Catalogue, ChoosesTheStrengthOfEachEffectWhoeverRanBefore)
{
    const std::map<std::string_view, int> cells{{"Negativo Artistico", 1},
                                                {"Colorazione", 2},
                                                {"Vetro", 3},
                                                {"Foto Color Rnd", 4},
                                                {"Forbici", 5}};
    EXPECT_EQ(NamesWhere(&Effect::selector).size(), cells.size());
    for (const auto& [name, cell] : cells) {
        EffectRun run(Varied(30, 20));
        run.work.IndValore = static_cast<std::int16_t>(cell % 5 + 1);
        run.work.Valori.fill(2500);
        run.Apply(*FindEffect(name));
        EXPECT_EQ(run.work.IndValore, cell) << name;
    }
}

}  // namespace
}  // namespace pixano::test
