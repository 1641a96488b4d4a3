// One step back, one forward, back to the opened picture: what the canvas shows and what can be
// used next.
#include "document/history_run.h"

namespace pixano::test {
namespace {

TEST_F(HistoryCommands, OffersNothingRightAfterOpening)
{
    ExpectUsable({false, false, false}, false);
}

TEST_F(HistoryCommands, OffersOnlyTheOriginalAfterOneEffect)
{
    A();
    ExpectUsable({false, true, false}, true);
    EXPECT_EQ(session.doc.NumEffetti, 1);
}

TEST_F(HistoryCommands, OffersUndoAfterTwoEffects)
{
    A();
    B();
    ExpectUsable({true, true, false}, true);
    ExpectShown({"~ab"}, "Capovolgi   3x1");
    EXPECT_EQ(session.doc.NumEffetti, 2);
    EXPECT_EQ(session.doc.NumEffettiSalvato, 2);
}

TEST_F(HistoryCommands, GoesBackToThePictureBeforeTheLastEffect)
{
    A();
    B();
    Undo();
    ExpectShown({"cba"}, "Capovolgi   3x1");
    ExpectUsable({false, true, true}, true);
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_EQ(session.doc.Annullato, 1);
    EXPECT_EQ(session.doc.InOriginale, 0);
    EXPECT_EQ(Kept(Data("temp2.bml")), (Letters{"~ab"}));
}

TEST_F(HistoryCommands, GoesForwardAgain)
{
    A();
    B();
    Undo();
    Redo();
    ExpectShown({"~ab"}, "Capovolgi   3x1");
    ExpectUsable({true, true, false}, true);
    EXPECT_EQ(session.doc.Annullato, 0);
}

TEST_F(HistoryCommands, GoesBackASecondTimeToTheSamePicture)
{
    A();
    B();
    Undo();
    Redo();
    QFile::remove(Data("temp2.bml"));
    Undo();
    ExpectShown({"cba"}, "Capovolgi   3x1");
    EXPECT_EQ(Kept(Data("temp2.bml")), (Letters{"~ab"}));
}

TEST_F(HistoryCommands, GoesBackToTheOpenedPicture)
{
    A();
    B();
    Orig();
    ExpectShown({"abc"}, "a.bmp   3x1");
    ExpectUsable({true, false, true}, false);
    EXPECT_EQ(session.doc.Modificato, 0);
    EXPECT_EQ(session.doc.InOriginale, 1);
    EXPECT_EQ(session.doc.NumEffetti, 0);
    EXPECT_EQ(session.doc.NumEffettiSalvato, 2);
}

TEST_F(HistoryCommands, GoesForwardFromTheOpenedPicture)
{
    A();
    B();
    Orig();
    Redo();
    ExpectShown({"~ab"}, "Capovolgi   3x1");
    ExpectUsable({true, true, false}, true);
    EXPECT_EQ(session.doc.NumEffetti, 2);
    EXPECT_EQ(session.doc.Modificato, 1);
    EXPECT_EQ(session.doc.InOriginale, 0);
}

TEST_F(HistoryCommands, OffersNoUndoAfterTheOriginalOfOneEffect)
{
    A();
    Orig();
    ExpectUsable({false, false, true}, false);
    Redo();
    ExpectShown({"cba"}, "Specchio   3x1");
    ExpectUsable({false, true, false}, true);
}

TEST_F(HistoryCommands, KeepsTheLaterPictureWhenTheOriginalFollowsAnUndo)
{
    A();
    B();
    Undo();
    Orig();
    ExpectShown({"abc"}, "a.bmp   3x1");
    EXPECT_EQ(Kept(Data("temp2.bml")), (Letters{"~ab"}));
    EXPECT_EQ(session.doc.Annullato, 0);
    Redo();
    ExpectShown({"~ab"}, "Capovolgi   3x1");
}

TEST_F(HistoryCommands, KeepsTheLaterPictureWhenAnUndoFollowsTheOriginal)
{
    A();
    B();
    Orig();
    Undo();
    ExpectShown({"cba"}, "Capovolgi   3x1");
    EXPECT_EQ(Kept(Data("temp2.bml")), (Letters{"~ab"}));
    EXPECT_EQ(session.doc.InOriginale, 0);
    EXPECT_EQ(session.doc.NumEffetti, 2);
    Redo();
    ExpectShown({"~ab"}, "Capovolgi   3x1");
}

TEST_F(HistoryCommands, OffersNoWayForwardAfterAnotherEffect)
{
    A();
    B();
    Undo();
    A();
    ExpectUsable({true, true, false}, true);
    ExpectShown({"abc"}, "Specchio   3x1");
}

TEST_F(HistoryCommands, WorkFromThePaletteToo)
{
    A();
    B();
    Button("SSCommand15").click();
    ExpectShown({"cba"}, "Capovolgi   3x1");
    Button("SSCommand17").click();
    ExpectShown({"~ab"}, "Capovolgi   3x1");
    Button("SSCommand16").click();
    ExpectShown({"abc"}, "a.bmp   3x1");
}

}  // namespace
}  // namespace pixano::test
