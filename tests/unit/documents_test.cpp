// Documents as plain values: what a document means that was cut off, or holds other words.
#include "boltcircle/document.h"
#include "oblique/answer.h"
#include "polygon/document.h"
#include "righttri/answer.h"
#include "services/words.h"
#include "sineplate/document.h"

#include <gtest/gtest.h>

namespace brindlex {
namespace {
using Lines = std::vector<std::string>;

TEST(Words, OfABoolean) {
    EXPECT_EQ(BooleanFromWord("TRUE"), true);
    EXPECT_EQ(BooleanFromWord("false"), false);
    EXPECT_EQ(BooleanFromWord("-1"), true);
    EXPECT_EQ(BooleanFromWord(" 0 "), false);
    EXPECT_EQ(BooleanFromWord("yes"), std::nullopt);
    EXPECT_EQ(BooleanFromWord(""), std::nullopt);
    EXPECT_EQ(BooleanWord(true) + BooleanWord(false), "TrueFalse");
}

TEST(Words, OfAFirstLine) {
    EXPECT_EQ(FirstLine("a\rb"), "a");
    EXPECT_EQ(FirstLine("\nb"), "");
    EXPECT_EQ(FirstLine("ab"), "ab");
}

TEST(SineDocuments, TakeTheLaterType) {
    const auto plate = sineplate::ReadDocument({"5\"", "True", "True", "30", "15"});
    ASSERT_TRUE(plate);
    EXPECT_EQ(plate->Spacing, "5\"");
    EXPECT_TRUE(plate->IsCompound());
    EXPECT_EQ(plate->Angles[1], "15");
    EXPECT_FALSE(sineplate::ReadDocument({"5", "False", "perhaps"})->IsCompound());
    EXPECT_EQ(sineplate::ReadDocument({"5"})->Angles[0], "");
    EXPECT_FALSE(sineplate::ReadDocument({}));
}

TEST(SineDocuments, BeginWithANumberOrGoOnWithABoolean) {
    EXPECT_TRUE(sineplate::IsDocument({"5\""}));
    EXPECT_TRUE(sineplate::IsDocument({"five", "True"}));
    EXPECT_FALSE(sineplate::IsDocument({"five", "TRUE"}));
    EXPECT_TRUE(sineplate::IsDocument({}));
}

TEST(PolygonDocuments, TakeTheLaterChoice) {
    const auto polygon = polygon::ReadDocument({" 7", "True", "False", "True", "True", "False", "1.5"});
    ASSERT_TRUE(polygon);
    EXPECT_TRUE(polygon->IsInscribed());
    EXPECT_TRUE(polygon->IsOneFlat());
    EXPECT_EQ(polygon->Dimension, "1.5");
    const auto other = polygon::ReadDocument({"6", "True", "1", "False", "True", "True"});
    EXPECT_FALSE(other->IsInscribed());
    EXPECT_FALSE(other->IsOneFlat());
    EXPECT_EQ(other->Dimension, std::nullopt);
}

TEST(PolygonDocuments, HaveSidesWithinWhatANumberHolds) {
    EXPECT_EQ(polygon::SidesOf("6.5"), 6);
    EXPECT_EQ(polygon::SidesOf("1e400"), 37);
    EXPECT_EQ(polygon::SidesOf("-3"), 0);
    EXPECT_GT(polygon::SidesTyped("1e400"), 1e300);
}

TEST(BoltDocuments, HaveACheckOf0Or1) {
    EXPECT_EQ(boltcircle::StoredCheck(" 1 "), 1);
    EXPECT_EQ(boltcircle::StoredCheck("0"), 0);
    EXPECT_EQ(boltcircle::StoredCheck("-1"), std::nullopt);
    EXPECT_EQ(boltcircle::StoredCheck("2"), std::nullopt);
    EXPECT_EQ(boltcircle::StoredCheck("True"), std::nullopt);
    EXPECT_EQ(boltcircle::StoredCheck("1e999"), std::nullopt);
}

TEST(TriangleDocuments, BeginWithACase) {
    EXPECT_TRUE(righttri::IsDocument({"Side a and side b"}));
    EXPECT_FALSE(righttri::IsDocument({"Side a and side b "}));
    EXPECT_TRUE(righttri::IsDocument({}));
    EXPECT_TRUE(oblique::IsDocument({"Angle A, Angle B, Angle C"}));
    EXPECT_FALSE(oblique::IsDocument({"Side a and side b"}));
}

}  // namespace
}  // namespace brindlex
