// Laws that hold for every effect of the catalogue, whatever it paints.
#include "canvas/fault.h"
#include "effects/catalogue.h"
#include "files/text_store.h"
#include "support/effect_run.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cctype>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <vector>

namespace pixano::test {
namespace {

constexpr std::array<Size, 16> Sizes{{{1, 1},
                                      {1, 2},
                                      {1, 9},
                                      {1, 40},
                                      {2, 1},
                                      {9, 1},
                                      {40, 1},
                                      {2, 2},
                                      {3, 3},
                                      {7, 5},
                                      {16, 16},
                                      {99, 99},
                                      {101, 81},
                                      {1501, 8},
                                      {8, 1501},
                                      {1500, 1500}}};

/// The run-time error that the effect's frame ended in, if any, at a middling strength.
std::optional<FaultKind> FaultOf(Work& work, const Effect& effect)
{
    work.Valori.fill(2500);
    return FaultIn([&] { RunOnCanvas(work, effect); });
}

/// Told for each effect of the catalogue.
class EveryEffect : public testing::TestWithParam<const Effect*> {
  protected:
    const Effect& effect = *GetParam();
};

TEST_P(EveryEffect, KeepsTheSizeOfTheCanvas)
{
    for (const auto& [width, height] : Sizes) {
        EffectRun run(Varied(width, height));
        FaultOf(run.work, effect);
        EXPECT_EQ(run.work.Picture1.Width(), width);
        EXPECT_EQ(run.work.Picture1.Height(), height);
        // Some effects measure it anew, one pixel smaller where that makes it even.
        EXPECT_TRUE(run.work.Larg == width || run.work.Larg == width - width % 2) << width;
        EXPECT_TRUE(run.work.Alt == height || run.work.Alt == height - height % 2) << height;
    }
}

TEST_P(EveryEffect, TellsGrowingProgressAndShowsItsWindow)
{
    for (const auto& [width, height] : Sizes) {
        EffectRun run(Varied(width, height));
        const bool done = !FaultOf(run.work, effect);
        const std::vector<double>& values = run.progress.values;
        EXPECT_TRUE(std::ranges::is_sorted(values)) << width << "x" << height;
        if (!values.empty()) {
            EXPECT_GE(values.front(), 0) << width << "x" << height;
            EXPECT_LE(values.back(), height + 1) << width << "x" << height;
        }
        EXPECT_TRUE(!done || run.progress.shownAfter >= 0) << width << "x" << height;
    }
}

TEST_P(EveryEffect, EndsInNoRunTimeErrorThatAPictureCannotCause)
{
    constexpr std::array Possible{FaultKind::InvalidCall, FaultKind::SubscriptOutOfRange,
                                  FaultKind::DivisionByZero};
    for (const auto& [width, height] : Sizes) {
        EffectRun run(Varied(width, height));
        const std::optional<FaultKind> fault = FaultOf(run.work, effect);
        EXPECT_TRUE(!fault || std::ranges::count(Possible, *fault) == 1) << width << "x" << height;
    }
}

// Small enough for every matrix, large enough for every effect, and nearly square.
TEST_P(EveryEffect, WorksOnOrdinaryPictures)
{
    for (const auto& [width, height] : {Size{99, 99}, Size{101, 81}, Size{120, 90}}) {
        EffectRun run(Varied(width, height));
        EXPECT_EQ(FaultOf(run.work, effect), std::nullopt) << width << "x" << height;
    }
}

TEST_P(EveryEffect, PaintsTheSameFromTheSameSeed)
{
    for (const auto& [width, height] : Sizes) {
        EffectRun first(Varied(width, height), 77);
        EffectRun second(Varied(width, height), 77);
        EXPECT_EQ(FaultOf(first.work, effect), FaultOf(second.work, effect));
        EXPECT_TRUE(first.work.Picture1 == second.work.Picture1) << width << "x" << height;
    }
}

// All that draw reseed first, but for one, which goes on with the numbers as they are.
TEST_P(EveryEffect, PaintsTheSameWhateverNumbersWereDrawnBefore)
{
    if (effect.name == "Forbici") return;
    EffectRun first(Varied(99, 99), 77);
    EffectRun second(Varied(99, 99), 77);
    second.work.Rnd();
    FaultOf(first.work, effect);
    FaultOf(second.work, effect);
    EXPECT_TRUE(first.work.Picture1 == second.work.Picture1);
}

TEST_P(EveryEffect, PaintsAnewOnlyWhereChanceDecides)
{
    static const std::set<std::string_view> byChance{
        "Distorsione 1", "Distorsione 2", "Foto Color Rnd",
        "Forbici",       "Mini Foto Rnd", "Deformazione Casuale",
    };
    EffectRun run(Varied(99, 99), 77);
    run.work.Vettore = Matrix();
    FaultOf(run.work, effect);
    const Surface first = run.work.Picture1;
    run.work.Vettore = Matrix();
    run.Load(Varied(99, 99));
    FaultOf(run.work, effect);
    EXPECT_EQ(run.work.Picture1 != first, byChance.contains(effect.name));
}

// Whether it ended well or in a run-time error, which may leave its pixel file half read.
TEST_P(EveryEffect, LeavesTheNextEffectAlone)
{
    const Surface next = Varied(6, 4);
    for (const auto& [width, height] : Sizes) {
        EffectRun run(Varied(width, height));
        FaultOf(run.work, effect);
        run.Load(next);
        EXPECT_EQ(run.Apply(Specchio).work.Picture1, EffectRun(next).Apply(Specchio).work.Picture1)
            << width << "x" << height;
    }
}

TEST_P(EveryEffect, PaintsFromAFileOnDiskAsFromMemoryAndLeavesNoFile)
{
    // A name of its own: tests run side by side.
    const std::filesystem::path file =
        testing::TempDir() + "pixano-" + std::to_string(&effect - Effects.data()) + ".ser";
    for (const auto& [width, height] : {Size{47, 39}, Size{60, 50}}) {
        EffectRun memory(Varied(width, height));
        FaultOf(memory.work, effect);
        Progress progress;
        Work disk(TextStore(file.string()), progress, Timer(1));
        PutOnCanvas(disk, Varied(width, height));
        FaultOf(disk, effect);
        EXPECT_EQ(disk.Picture1, memory.work.Picture1) << width << "x" << height;
        EXPECT_FALSE(std::filesystem::exists(file)) << width << "x" << height;
    }
}

std::string NameOf(const testing::TestParamInfo<const Effect*>& info)
{
    std::string name;
    for (const char c : info.param->name)
        if (std::isalnum(static_cast<unsigned char>(c)) != 0) name += c;
    return name + "_" + std::to_string(info.index);
}

std::vector<const Effect*> WholeCatalogue()
{
    std::vector<const Effect*> effects;
    for (const Effect& effect : Effects)
        effects.push_back(&effect);
    return effects;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, EveryEffect, testing::ValuesIn(WholeCatalogue()), NameOf);

}  // namespace
}  // namespace pixano::test
