// What a second start hands over arrives letter for letter.
#include "shell/second_start.h"

#include "support/temporary_folder.h"
#include "windows/file_names.h"

#include <QTest>

#include <gtest/gtest.h>

#include <future>

namespace pixano::test {
namespace {

TEST(SecondStart, HandsOverEveryNameOfAFile)
{
    const TemporaryFolder folder;
    const QString place = QString::fromStdString(folder.Path());
    const SecondStarts starts(place);
    std::vector<std::string> called;
    QObject::connect(&starts, &SecondStarts::Called,
                     [&](const QString& picture) { called.push_back(FileBytes(picture)); });
    const std::vector<std::string> names{"/a b/f\xC3\xB2to.bmp", "/f\xF2to.bmp", ""};
    for (const std::string& name : names) {
        auto heard =
            std::async(std::launch::async, [&] { return HandOver(place, FileName(name)); });
        EXPECT_TRUE(QTest::qWaitFor(
            [&] { return heard.wait_for(std::chrono::seconds(0)) == std::future_status::ready; }));
        EXPECT_TRUE(heard.get());
    }
    EXPECT_EQ(called, names);
}

}  // namespace
}  // namespace pixano::test
