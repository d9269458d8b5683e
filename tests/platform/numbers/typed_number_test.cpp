// SPDX-License-Identifier: MIT
/// Typing a number key by key.
#include "platform/numbers/typed_number.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/numbers/printed_entries.h"

namespace mero::numbers {
namespace {

using enum NumberField;

/// Types the characters one by one behind `text`; those that are not taken leave the field as it is.
std::string typedAll(std::string_view characters, NumberField kind, std::string text = {}) {
    FieldText field{std::move(text), {}};
    for (const char character : characters) {
        const Typed after = typed(field, {&character, 1}, kind);
        if (const auto* taken = std::get_if<FieldText>(&after)) {
            field = *taken;
        }
    }
    return field.whole();
}

TEST(Typed, ACommaIsAPoint) {
    EXPECT_EQ(typedAll("0,8", Plain), "0.8");
    EXPECT_EQ(typedAll("1200,5", Plain), "1200.5");
    EXPECT_EQ(typedAll("0,0001", WithExponent), "0.0001");
}

TEST(Typed, AFirstCommaGetsItsZero) {
    EXPECT_EQ(typedAll(",5", Plain), "0.5");
    EXPECT_EQ(typed({"", "5"}, ",", Plain), Typed(FieldText{"0.", "5"}));
}

TEST(Typed, BlanksGroupDigits) {
    EXPECT_EQ(typedAll("1 200", Plain), "1200");
    EXPECT_EQ(typed({"1", ""}, "\u00A0", Plain), Typed(FieldText{"1", ""}));
}

TEST(Typed, ASecondPointIsNotTaken) {
    EXPECT_EQ(typed({"1.2", ""}, ",", Plain), Typed(NotTaken::TwoSeparators));
    EXPECT_EQ(typed({"1", ".2"}, ".", Plain), Typed(NotTaken::TwoSeparators));
}

TEST(Typed, LettersAndSignsAreNotTaken) {
    for (const char* key : {"a", "ě", "m", "+", "/", "'", "e", "E"}) {
        EXPECT_EQ(typed({"1", ""}, key, Plain), Typed(NotTaken::NoNumber)) << key;
    }
    EXPECT_EQ(typed({"", ""}, "x", WithExponent), Typed(NotTaken::NoNumber));
}

TEST(Typed, NoFieldIsNegative) {
    for (const NumberField kind : {Plain, WithExponent, Whole}) {
        EXPECT_EQ(typed({"", ""}, "-", kind), Typed(NotTaken::Negative));
        EXPECT_EQ(typed({"", "5"}, "\u2212", kind), Typed(NotTaken::Negative));
    }
}

TEST(Typed, AnExponentIsTypedStepByStep) {
    EXPECT_EQ(typedAll("1e-4", WithExponent), "1e-4");
    EXPECT_EQ(typedAll("1,5E-4", WithExponent), "1.5e-4") << "a capital E alone would empty the field";
    EXPECT_EQ(typedAll("1e-4", Plain), "14") << "minus and e are refused one by one";
    EXPECT_EQ(typedAll("1ee--4", WithExponent), "1e-4");
}

TEST(Typed, ACountHasDigitsOnly) {
    EXPECT_EQ(typed({"2", ""}, ",", Whole), Typed(NotTaken::NotWhole));
    EXPECT_EQ(typedAll("32767", Whole), "32767");
    EXPECT_EQ(typed({"3276", ""}, "8", Whole), Typed(NotTaken::TooLarge));
}

TEST(Typed, NothingThatIsNotStoredAsItIsShown) {
    EXPECT_EQ(typed({"1e3", ""}, "9", WithExponent), Typed(NotTaken::TooLarge));
    EXPECT_EQ(typed({"1e-5", ""}, "0", WithExponent), Typed(NotTaken::TooSmall));
}

TEST(Typed, ResultsLoseTheirGroupsWhenTheyAreEdited) {
    EXPECT_EQ(typed({"1 234.5", ""}, "6", Plain), Typed(FieldText{"1234.56", ""}));
    EXPECT_EQ(remaining({"1 23", ".5"}, Plain), Typed(FieldText{"123", ".5"}));
}

TEST(Pasted, IsCleanedForTheKindOfField) {
    EXPECT_EQ(pasted({}, "1 200,5 m²", Plain, "m²"), Typed(FieldText{"1200.5", ""}));
    EXPECT_EQ(pasted({}, "1,5E-4", WithExponent, "m/s"), Typed(FieldText{"1.5e-4", ""}));
    EXPECT_EQ(pasted({}, "1,5E-4", Plain, ""), Typed(FieldText{"0.00015", ""}));
    EXPECT_EQ(pasted({}, "12,00", Whole, ""), Typed(FieldText{"12", ""}));
    EXPECT_EQ(pasted({}, "12,5", Whole, ""), Typed(NotTaken::NotWhole));
    EXPECT_EQ(pasted({}, "-5", Plain, ""), Typed(NotTaken::Negative));
}

TEST(Pasted, MustMakeANumberWithWhatIsThere) {
    EXPECT_EQ(pasted({"2.", ""}, "5", Plain, ""), Typed(FieldText{"2.5", ""}));
    EXPECT_EQ(pasted({"2.5", ""}, "1,5", Plain, ""), Typed(NotTaken::NoNumber));
}

TEST(Remaining, NothingWithoutADigit) {
    EXPECT_EQ(remaining({"", ""}, Plain), Typed(FieldText{}));
    EXPECT_EQ(remaining({"", "."}, Plain), Typed(FieldText{}));
    EXPECT_EQ(remaining({".", ""}, Plain), Typed(FieldText{}));
}

TEST(Remaining, APartOfANumberIsANumber) {
    EXPECT_EQ(remaining({"1.", ""}, Plain), Typed(FieldText{"1.", ""}));
    EXPECT_EQ(remaining({"", ".5"}, Plain), Typed(FieldText{"", ".5"}));
}

TEST(Remaining, OfAnExponentGetsASmallE) {
    EXPECT_EQ(remaining({"1.0E-0", ""}, WithExponent), Typed(FieldText{"1.0E-0", ""}));
    EXPECT_EQ(remaining({"1.0E-", ""}, WithExponent), Typed(FieldText{"1.0e-", ""}));
    EXPECT_EQ(remaining({"1.0E", ""}, WithExponent), Typed(FieldText{"1.0e", ""}));
    EXPECT_EQ(remaining({"", "e-4"}, WithExponent), Typed(FieldText{"", "e-4"}));
}

TEST(Remaining, OfAnExponentIsRefusedWhereItWouldNotBeRead) {
    EXPECT_EQ(remaining({"1E+", ""}, Plain), Typed(NotTaken::NoNumber));
}

TEST(Finished, IsNothingOrANumber) {
    for (const char* text : {"", "0", "1.", ".5", "1.0E-04", "1 234.5"}) {
        EXPECT_TRUE(isFinished(text)) << text;
    }
    for (const char* text : {"1e", "1e-", "e-4", "x"}) {
        EXPECT_FALSE(isFinished(text)) << text;
    }
}

TEST(BeginsNumber, ADigitOrASeparator) {
    for (const char* key : {"0", "9", ",", "."}) {
        EXPECT_TRUE(beginsNumber(key)) << key;
    }
    for (const char* key : {"a", "ř", " ", "-", "+", "e", ""}) {
        EXPECT_FALSE(beginsNumber(key)) << key;
    }
}

}  // namespace
}  // namespace mero::numbers
