// Laws that hold for the catalogue and for every effect in it, whatever it paints.
#include "effects/catalogue.h"

#include "canvas/fault.h"
#include "effects/geometry/geometry.h"
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

TEST(Catalogue, FindsEachEffectByItsName)
{
    std::set<std::string_view> names;
    for (const Effect& effect : Catalogue()) {
        EXPECT_FALSE(effect.name.empty());
        EXPECT_TRUE(names.insert(effect.name).second) << effect.name;
        EXPECT_EQ(FindEffect(effect.name), &effect);
        EXPECT_NE(effect.run, nullptr) << effect.name;
    }
    EXPECT_EQ(FindEffect("specchio"), nullptr);
    EXPECT_EQ(FindEffect(""), nullptr);
}

TEST(Catalogue, GivesNoMenuEntryToTwoEffects)
{
    constexpr int MenuEntries = 62;
    std::set<int> entries;
    for (const Effect& effect : Catalogue()) {
        if (effect.entry == 0) continue;
        EXPECT_TRUE(effect.entry >= 1 && effect.entry <= MenuEntries) << effect.name;
        EXPECT_TRUE(entries.insert(effect.entry).second) << effect.name;
    }
    for (int index = -1; index <= MenuEntries + 1; ++index) {
        const Effect* const started = EffectOfEntry(index);
        EXPECT_EQ(started != nullptr, entries.contains(index)) << index;
        EXPECT_TRUE(started == nullptr || started->entry == index) << index;
    }
}

TEST(Catalogue, GivesNoStrengthToTwoEffects)
{
    std::set<int> selectors;
    for (const Effect& effect : Catalogue()) {
        if (effect.selector == 0) continue;
        EXPECT_TRUE(effect.selector >= 1 && effect.selector <= 5) << effect.name;
        EXPECT_TRUE(selectors.insert(effect.selector).second) << effect.name;
    }
}

TEST(Catalogue, KeepsFamiliesTogether)
{
    EXPECT_TRUE(std::ranges::is_sorted(Catalogue(), {}, &Effect::family));
}

/// Runs the effect as its frame does: strength chosen, reseeded where its row says so, pixel file
/// dropped. Gives the run-time error that it ended in, if any.
std::optional<FaultKind> FaultIn(Work& work, const Effect& effect)
{
    work.IndValore = static_cast<std::int16_t>(effect.selector);
    work.Valori.fill(2500);
    if (effect.reseed != Reseed::Never) work.Randomize();
    try {
        effect.run(work);
        work.ElabSer.Kill();
    } catch (const Fault& fault) {
        return fault.Kind();
    }
    return std::nullopt;
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
        FaultIn(run.work, effect);
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
        const bool done = !FaultIn(run.work, effect);
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
        const std::optional<FaultKind> fault = FaultIn(run.work, effect);
        EXPECT_TRUE(!fault || std::ranges::count(Possible, *fault) == 1) << width << "x" << height;
    }
}

// Small enough for every matrix, large enough for every effect, and nearly square.
TEST_P(EveryEffect, WorksOnOrdinaryPictures)
{
    for (const auto& [width, height] : {Size{99, 99}, Size{101, 81}, Size{120, 90}}) {
        EffectRun run(Varied(width, height));
        EXPECT_EQ(FaultIn(run.work, effect), std::nullopt) << width << "x" << height;
    }
}

TEST_P(EveryEffect, PaintsTheSameFromTheSameSeed)
{
    for (const auto& [width, height] : Sizes) {
        EffectRun first(Varied(width, height), 77);
        EffectRun second(Varied(width, height), 77);
        EXPECT_EQ(FaultIn(first.work, effect), FaultIn(second.work, effect));
        EXPECT_TRUE(first.work.Picture1 == second.work.Picture1) << width << "x" << height;
    }
}

// Whether it ended well or in a run-time error, which may leave its pixel file half read.
TEST_P(EveryEffect, LeavesTheNextEffectAlone)
{
    const Surface next = Varied(6, 4);
    for (const auto& [width, height] : Sizes) {
        EffectRun run(Varied(width, height));
        FaultIn(run.work, effect);
        run.Load(next);
        EXPECT_EQ(run.Apply(Specchio).work.Picture1, EffectRun(next).Apply(Specchio).work.Picture1)
            << width << "x" << height;
    }
}

TEST_P(EveryEffect, PaintsFromAFileOnDiskAsFromMemoryAndLeavesNoFile)
{
    // A name of its own: tests run side by side.
    const std::filesystem::path file =
        testing::TempDir() + "pixano-" + std::to_string(&effect - Catalogue().data()) + ".ser";
    for (const auto& [width, height] : {Size{47, 39}, Size{60, 50}}) {
        EffectRun memory(Varied(width, height));
        FaultIn(memory.work, effect);
        Progress progress;
        Work disk(TextStore(file.string()), progress, Timer(1));
        disk.Picture1 = Varied(width, height);
        disk.Larg = width;
        disk.Alt = height;
        FaultIn(disk, effect);
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
    for (const Effect& effect : Catalogue())
        effects.push_back(&effect);
    return effects;
}

INSTANTIATE_TEST_SUITE_P(Catalogue, EveryEffect, testing::ValuesIn(WholeCatalogue()), NameOf);

}  // namespace
}  // namespace pixano::test
