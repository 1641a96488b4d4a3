// The windows that inform: the emblem, the opening picture and the description.
#include "panels/asked.h"
#include "panels/form5.h"
#include "panels/form6.h"
#include "panels/form7.h"
#include "support/program.h"

#include <QLabel>
#include <QScreen>
#include <QTextBlock>
#include <QTextBrowser>
#include <QTextDocument>
#include <QWindow>

namespace pixano::test {
namespace {

void ExpectCentred(const QWidget& window)
{
    const QSize free = window.screen()->size() - window.size();
    EXPECT_LE(std::abs(2 * window.pos().x() - free.width()), 1);
    EXPECT_LE(std::abs(2 * window.pos().y() - free.height()), 1);
}

void ExpectPicture(const QWidget& window, QSize size)
{
    const auto* const picture = window.findChild<QLabel*>("Picture1");
    ASSERT_NE(picture, nullptr);
    EXPECT_EQ(picture->pixmap().deviceIndependentSize().toSize(), size);
    const QImage image = picture->pixmap().toImage();
    EXPECT_NE(image.pixel(0, 0), image.pixel(image.width() / 2, image.height() / 2));
}

TEST(Informazioni, ShowsTheEmblemInTheMiddleOfTheScreen)
{
    Form5 window;
    window.show();
    EXPECT_EQ(window.windowTitle(), "Informazioni");
    ExpectPicture(window, {480, 320});
    ExpectCentred(window);
}

TEST(Informazioni, ClosesAtItsButtonReturnAndEscape)
{
    Form5 window;
    window.show();
    ClickButton(window, "Command1");
    EXPECT_FALSE(window.isVisible());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape}) {
        window.show();
        QTest::keyClick(&window, key);
        EXPECT_FALSE(window.isVisible());
    }
}

TEST(InformationWindows, AreAsLargeAsWhatTheyShow)
{
    Form5 emblem;
    Form6 opening;
    Form7 description;
    for (QDialog* const window : std::initializer_list<QDialog*>{&emblem, &opening, &description}) {
        window->show();
        EXPECT_EQ(window->minimumSize(), window->maximumSize())
            << window->objectName().toStdString();
    }
}

TEST(OpeningPicture, HasNoCaption)
{
    Form6 window;
    window.show();
    EXPECT_TRUE(window.windowTitle().isEmpty());
    // The desktop would put the program's name where the title is quite empty.
    EXPECT_EQ(window.windowHandle()->title(), " ");
    EXPECT_TRUE(window.windowFlags().testFlag(Qt::FramelessWindowHint));
    ExpectPicture(window, {640, 420});
    EXPECT_EQ(window.size(), QSize(640, 420)) << "nothing but the picture";
    ExpectCentred(window);
}

TEST(OpeningPicture, GoesAtAClickAndAtTheUsualKeys)
{
    Form6 window;
    window.show();
    QTest::mouseClick(window.findChild<QLabel*>("Picture1"), Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space, Qt::Key_Escape}) {
        window.show();
        QTest::keyClick(&window, key);
        EXPECT_FALSE(window.isVisible()) << key;
    }
}

TEST(OpeningPicture, GoesWhenTheButtonOfTheMouseIsReleasedAndNotBefore)
{
    Form6 window;
    window.show();
    auto* const picture = window.findChild<QLabel*>("Picture1");
    QTest::mousePress(picture, Qt::LeftButton);
    EXPECT_TRUE(window.isVisible());
    QTest::mouseRelease(picture, Qt::LeftButton);
    EXPECT_FALSE(window.isVisible());
}

TEST(OpeningPicture, StaysAtOtherKeys)
{
    Form6 window;
    window.show();
    QTest::keyClick(&window, Qt::Key_A);
    EXPECT_TRUE(window.isVisible());
}

class Description : public testing::Test {
  protected:
    Description() { window.show(); }
    const QTextDocument& Text()
    {
        return *window.findChild<QTextBrowser*>("RichTextBox1")->document();
    }

    Form7 window;
};

TEST_F(Description, StandsInTheMiddleWithoutACaption)
{
    EXPECT_TRUE(window.windowTitle().isEmpty());
    EXPECT_EQ(window.windowHandle()->title(), " ");
    ExpectCentred(window);
}

TEST_F(Description, BeginsWithTheNameInBold)
{
    const QTextBlock first = Text().begin();
    EXPECT_EQ(first.text(), "Pixano 2.3");
    EXPECT_GE(first.begin().fragment().charFormat().fontWeight(), QFont::Bold);
    const QTextBlock second = first.next();
    EXPECT_LT(second.begin().fragment().charFormat().fontWeight(), QFont::Bold);
}

TEST_F(Description, IsWrittenInItsFont)
{
    for (QTextBlock block = Text().begin(); block.isValid(); block = block.next())
        EXPECT_EQ(block.begin().fragment().charFormat().fontFamilies().toStringList().front(),
                  "MS Sans Serif");
}

TEST_F(Description, SaysWhatTheProgramIsFor)
{
    const QString text = Text().toPlainText();
    for (const char* said : {"BMP, GIF e JPG", "copia e incolla", "Buon Lavoro!", "grazie", "@"})
        EXPECT_TRUE(text.contains(said)) << said;
}

TEST_F(Description, FillsItsBoxAndHasAMargin)
{
    const auto* const box = window.findChild<QTextBrowser*>("RichTextBox1");
    EXPECT_LE(Text().size().height(), box->viewport()->height());
    EXPECT_GT(Text().size().height(), box->viewport()->height() - 2);
    EXPECT_GE(Text().documentMargin(), 12);
    EXPECT_FALSE(box->openLinks());
}

TEST_F(Description, IsSignedAndHasOneKindOfApostrophe)
{
    const QString text = Text().toPlainText();
    EXPECT_TRUE(text.trimmed().endsWith("Gli autori di Pixano")) << text.toStdString();
    EXPECT_TRUE(text.contains('\''));
    EXPECT_FALSE(text.contains(QChar(0x2019)));
}

TEST_F(Description, ClosesAtItsButtonAndAtEscape)
{
    ClickButton(window, "Command1");
    EXPECT_FALSE(window.isVisible());
    window.show();
    QTest::keyClick(window.findChild<QTextBrowser*>(), Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

class InformationEntries : public Program {};

TEST_F(InformationEntries, ShowTheirWindowsModally)
{
    WhileAsked([](QWidget& window) { EXPECT_EQ(window.objectName(), "Form5"); });
    ClickEntry(entry::Inf);
    WhileAsked([](QWidget& window) { EXPECT_EQ(window.objectName(), "Form7"); });
    ClickEntry(entry::Inter);
}

TEST_F(InformationEntries, ChangeNothingInTheDocument)
{
    Open("a.bmp", Varied(5, 4));
    ClickEntry(32);
    const std::string before = BytesOf(Data("temp.bml").toStdString());
    const Letters canvas = CanvasLetters();
    WhileAsked([](QWidget& window) { ClickButton(window, "Command1"); });
    ClickEntry(entry::Inf);
    WhileAsked([](QWidget& window) { ClickButton(window, "Command1"); });
    ClickEntry(entry::Inter);
    EXPECT_EQ(CanvasLetters(), canvas);
    EXPECT_EQ(BytesOf(Data("temp.bml").toStdString()), before);
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_EQ(CanvasCaption(), "Capovolgi   5x4");
}

}  // namespace
}  // namespace pixano::test
