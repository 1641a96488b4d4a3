#include "canvas/matrix.h"
#include "support/faults.h"

#include <limits>

namespace pixano::test {
namespace {

TEST(Matrix, ReadsZeroWhereNothingWasWritten)
{
    Matrix matrix;
    for (const int index : {0, 1, 750, 1499, 1500}) {
        EXPECT_EQ(matrix(index, 0), 0);
        EXPECT_EQ(matrix(0, index), 0);
        EXPECT_EQ(matrix(index, index), 0);
    }
}

TEST(Matrix, KeepsColumnAndRowApart)
{
    Matrix matrix;
    matrix(1500, 0) = 1;
    matrix(0, 1500) = 2;
    matrix(1500, 1500) = 3;
    matrix(0, 1) = 4;
    matrix(1, 0) = -1;
    EXPECT_EQ(matrix(1500, 0), 1);
    EXPECT_EQ(matrix(0, 1500), 2);
    EXPECT_EQ(matrix(1500, 1500), 3);
    EXPECT_EQ(matrix(0, 1), 4);
    EXPECT_EQ(matrix(1, 0), -1);
    EXPECT_EQ(matrix(0, 0), 0);
}

TEST(Matrix, FailsAtAnIndexOutsideZeroToFifteenHundred)
{
    Matrix matrix;
    for (const int index :
         {-1, 1501, std::numeric_limits<int>::max(), std::numeric_limits<int>::min()}) {
        EXPECT_EQ(FaultIn([&] { matrix(index, 0); }), FaultKind::SubscriptOutOfRange);
        EXPECT_EQ(FaultIn([&] { matrix(0, index); }), FaultKind::SubscriptOutOfRange);
    }
    EXPECT_EQ(FaultIn([&] { matrix(1500, 1500); }), std::nullopt);
}

TEST(Matrix, GivesItsRowsAndColumns)
{
    Matrix matrix;
    matrix(2, 7) = 5;
    matrix(3, 1500) = 6;
    EXPECT_EQ(matrix.Row(7)(2), 5);
    EXPECT_EQ(matrix.Column(2)(7), 5);
    EXPECT_EQ(matrix.Column(3)(1500), 6);
    matrix.Row(8)(1500) = 9;
    matrix.Column(1500)(9) = 10;
    EXPECT_EQ(matrix(1500, 8), 9);
    EXPECT_EQ(matrix(1500, 9), 10);
    EXPECT_EQ(matrix.Row(7, 3).back(), 5);
    EXPECT_EQ(&matrix.Row(8, 1501).back(), &matrix(1500, 8));
}

TEST(Matrix, FailsOutsideItsRowsAndColumns)
{
    Matrix matrix;
    for (const int index : {-1, 1501, std::numeric_limits<int>::min()}) {
        EXPECT_EQ(FaultIn([&] { matrix.Row(index); }), FaultKind::SubscriptOutOfRange);
        EXPECT_EQ(FaultIn([&] { matrix.Row(index, 1); }), FaultKind::SubscriptOutOfRange);
        EXPECT_EQ(FaultIn([&] { matrix.Row(0)(index); }), FaultKind::SubscriptOutOfRange);
        EXPECT_EQ(FaultIn([&] { matrix.Column(index); }), FaultKind::SubscriptOutOfRange);
        EXPECT_EQ(FaultIn([&] { matrix.Column(0)(index); }), FaultKind::SubscriptOutOfRange);
    }
}

}  // namespace
}  // namespace pixano::test
