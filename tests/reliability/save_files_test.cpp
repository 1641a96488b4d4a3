// Saving while the system fails: whichever call it is, the file is the old one or the new one.
#include "reliability/save_failing.h"

#include <gtest/gtest.h>

#include <climits>

namespace pixano::test {
namespace {

// At least: the folder and the file are opened, the file is written, closed and put in its place.
constexpr long FewestCalls = 5;

TEST_P(FailingSave, OneCallFails)
{
    for (const int error : Errors)
        EXPECT_GE(EachCallInTurn({.error = error}, false, [](Result) {}), FewestCalls);
}

TEST_P(FailingSave, AllCallsFailFromOneOnward)
{
    for (const int error : Errors) {
        bool lastSaved = false;
        const auto keepsLast = [&](Result result) { lastSaved = result.saved; };
        EXPECT_GE(EachCallInTurn({.error = error}, true, keepsLast), FewestCalls);
        // What fails after the file is in its place takes nothing back.
        EXPECT_TRUE(lastSaved);
    }
}

TEST_P(FailingSave, WhatMayHaveLostBytesIsNoSave)
{
    for (const unsigned kind : {Writes, Synchronises, Closes, Names}) {
        const Result result = Save({.last = LONG_MAX, .only = kind});
        EXPECT_EQ(result.saved, result.failed == 0) << kind;
        // Only working files are not synchronised.
        EXPECT_TRUE(result.failed > 0 || (kind == Synchronises && way.save == WriteWorkingBitmap));
    }
    EXPECT_FALSE(Save({.only = Closes}).saved);
}

// Killed at its first call, at the second, and so on.
TEST_P(FailingSave, AKilledSaveLeavesTheOldFileOrTheNewOne)
{
    long left = 0;
    long n = 1;
    for (; KilledAt(n); ++n) {
        const Bytes now = ReadFile(real);
        EXPECT_TRUE(now == whole ||
                    (way.before == Nothing ? !std::filesystem::exists(real) : now == old))
            << n;
        for (const std::string& name : folder.Names()) {
            if (!name.starts_with(".pixano-")) continue;
            ++left;
            std::filesystem::remove(folder / name);
        }
    }
    EXPECT_GT(n, FewestCalls);
    // It has a name of its own only while it is closed and put in its place, by an exchange or else
    // by a renaming.
    EXPECT_TRUE(way.oldFileSystem || left <= 3) << left;
    EXPECT_EQ(folder.Names().size(), way.before == Link ? 2U : 1U);
}

TEST_P(FailingSave, AnInterruptedCallIsRepeated)
{
    const FailingCalls orders{.error = EINTR, .only = Interruptible};
    const auto saved = [](Result result) { EXPECT_TRUE(result.saved); };
    EXPECT_GE(EachCallInTurn(orders, false, saved), FewestCalls - 1);
}

TEST_P(FailingSave, AShortWriteIsContinued)
{
    const Result result = Save({.last = LONG_MAX, .as = FailingCalls::As::Half});
    EXPECT_TRUE(result.saved);
    EXPECT_GT(result.failed, 0);
}

TEST_P(FailingSave, AWriteThatTakesNothingIsGivenUp)
{
    const Result result = Save({.last = LONG_MAX, .as = FailingCalls::As::Nothing});
    EXPECT_FALSE(result.saved);
    EXPECT_GT(result.failed, 0);
}

TEST_P(FailingSave, TheDiskIsFullAfterSoManyBytes)
{
    const auto size = static_cast<long>(whole.Size());
    for (const long room : {0L, 1L, 53L, 54L, size / 2, size - 1})
        EXPECT_FALSE(Save({.first = LONG_MAX, .last = LONG_MAX, .room = room}).saved) << room;
    EXPECT_TRUE(Save({.first = LONG_MAX, .last = LONG_MAX, .room = size}).saved);
}

using enum Way::Before;

constexpr Way Ways[] = {
    {"BitmapReplaced", "figura.bmp", SaveBitmap, File},
    {"BitmapNew", "figura.bmp", SaveBitmap, Nothing},
    {"BitmapByALink", "figura.bmp", SaveBitmap, Link},
    {"PngReplaced", "figura.png", SavePicture, File},
    {"JpegReplaced", "figura.jpg", SavePicture, File},
    {"JpegNew", "figura.jpg", SavePicture, Nothing},
    {"WorkingFileReplaced", "temp.bml", WriteWorkingBitmap, File},
    {"WorkingFileNew", "temp.bml", WriteWorkingBitmap, Nothing},
    {"RescueReplaced", "lavoro.bmp", SavePrivateBitmap, File},
    {"RescueNew", "lavoro.bmp", SavePrivateBitmap, Nothing},
    {"BitmapReplacedOnAnOldFileSystem", "figura.bmp", SaveBitmap, File, true},
    {"BitmapNewOnAnOldFileSystem", "figura.bmp", SaveBitmap, Nothing, true},
    {"WorkingFileOnAnOldFileSystem", "temp.bml", WriteWorkingBitmap, File, true}};

INSTANTIATE_TEST_SUITE_P(Save, FailingSave, testing::ValuesIn(Ways),
                         [](const auto& way) { return std::string(way.param.name); });

}  // namespace
}  // namespace pixano::test
