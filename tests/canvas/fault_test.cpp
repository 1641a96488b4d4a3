#include "canvas/fault.h"

#include <gtest/gtest.h>

#include <array>
#include <set>

namespace pixano::test {
namespace {

using K = FaultKind;

struct Told {
    FaultKind kind;
    const char* sentence;
};

// Italian, one sentence, no full stop: whoever tells it puts it behind the effect's name.
constexpr std::array<Told, 10> Sentences{{
    {K::SubscriptOutOfRange, "Indice fuori dalla matrice (ammessi da 0 a 1500): l'immagine è "
                             "troppo grande, troppo piccola o troppo "
                             "allungata per questo effetto"},
    {K::DivisionByZero, "Divisione per zero"},
    {K::Overflow, "Numero troppo grande"},
    {K::TypeMismatch, "È stato letto un testo al posto di un numero"},
    {K::InputPastEnd, "Lettura oltre la fine del file"},
    {K::FileNotFound, "File non trovato"},
    {K::FileAccess, "Impossibile accedere al file"},
    {K::DiskFull, "Impossibile scrivere tutto il file (disco pieno?)"},
    {K::InvalidCall, "Operazione impossibile"},
    {K::OutOfMemory, "La memoria non basta"},
}};

TEST(Fault, IsToldInOneItalianSentence)
{
    for (const auto& [kind, sentence] : Sentences) {
        EXPECT_STREQ(Fault(kind).what(), sentence);
        EXPECT_EQ(Fault(kind).Kind(), kind) << sentence;
    }
}

TEST(Fault, MayHaveASentenceOfItsOwn)
{
    const Fault fault(K::Overflow, "Nel file c'è un numero troppo grande");
    EXPECT_STREQ(fault.what(), "Nel file c'è un numero troppo grande");
    EXPECT_EQ(fault.Kind(), K::Overflow);
}

/// The run-time errors that end the program under that rule.
std::set<FaultKind> Ending(Fatal fatal)
{
    std::set<FaultKind> ending;
    for (const Told& told : Sentences)
        if (EndsProgram(fatal, told.kind)) ending.insert(told.kind);
    return ending;
}

TEST(Fault, EndsTheProgramWhereItsRuleSaysSo)
{
    EXPECT_EQ(Ending(Fatal::None), (std::set<FaultKind>{}));
    EXPECT_EQ(Ending(Fatal::Index), (std::set{K::SubscriptOutOfRange}));
    EXPECT_EQ(Ending(Fatal::IndexAndDivision),
              (std::set{K::SubscriptOutOfRange, K::DivisionByZero}));
    // A request that can have no result never does.
    EXPECT_EQ(Ending(Fatal::All), (std::set{K::SubscriptOutOfRange, K::DivisionByZero, K::Overflow,
                                            K::TypeMismatch, K::InputPastEnd, K::FileNotFound,
                                            K::FileAccess, K::DiskFull, K::OutOfMemory}));
}

TEST(FirstFault, IsTheOneThatIsThrownWhenAllStepsAreDone)
{
    FirstFault first;
    EXPECT_FALSE(first);
    EXPECT_NO_THROW(first.Throw());
    int done = 0;
    first.Try([&] { ++done; });
    EXPECT_FALSE(first);
    first.Try([] { throw Fault(K::DiskFull); });
    first.Try([] { throw Fault(K::Overflow); });
    first.Try([] { throw std::bad_alloc(); });
    first.Try([&] { ++done; });
    EXPECT_EQ(done, 2);
    EXPECT_TRUE(first);
    try {
        first.Throw();
        ADD_FAILURE() << "nothing was thrown";
    } catch (const Fault& fault) {
        EXPECT_EQ(fault.Kind(), K::DiskFull);
    }
}

TEST(ErrorOf, IsTheOneThatAStepEndsIn)
{
    EXPECT_FALSE(ErrorOf([] {}));
    const std::optional<Fault> full = ErrorOf([] { throw Fault(K::DiskFull, "Non c'è posto"); });
    ASSERT_TRUE(full);
    EXPECT_EQ(full->Kind(), K::DiskFull);
    EXPECT_STREQ(full->what(), "Non c'è posto");
    const std::optional<Fault> memory = ErrorOf([] { throw std::bad_alloc(); });
    ASSERT_TRUE(memory);
    EXPECT_EQ(memory->Kind(), K::OutOfMemory);
    EXPECT_THROW(ErrorOf([] { throw 1; }), int);
}

TEST(FirstFault, MayBeThatThereIsNoMemory)
{
    FirstFault first;
    first.Try([] { throw std::bad_alloc(); });
    first.Try([] { throw Fault(K::Overflow); });
    EXPECT_TRUE(first);
    EXPECT_THROW(first.Throw(), std::bad_alloc);
}

}  // namespace
}  // namespace pixano::test
