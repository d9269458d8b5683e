// SPDX-License-Identifier: MIT
/// The shaft's shape, catalogue and dimension boxes, and the two diameters that follow from them.
/// Numbers: see expected.py.
#include "forms/design/design_fixture.h"

namespace mero::forms::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using enum platform::UpDown::Direction;

class ShaftInputs : public DesignTest {
  protected:
    void SetUp() override { project.choose(FacilityType::Shaft); }

    void chooseRound() { project.click(window.optSelTypSachty[0]); }
    void chooseRectangular() { project.click(window.optSelTypSachty[1]); }
    void boxes(const std::string& first, const std::string& second, const std::string& wall) {
        project.set(window.txtPrumerSachtyVnit, first);
        if (!second.empty()) {
            project.set(window.txtPrumerSachtyVnej, second);
        }
        project.set(window.txtTloustkaSteny, wall);
    }
    /// The texts of the three boxes.
    std::vector<std::string> shown() {
        return {window.txtPrumerSachtyVnit.text(), window.txtPrumerSachtyVnej.text(),
                window.txtTloustkaSteny.text()};
    }
    void expectDiameters(float inner, float outer) {
        EXPECT_EQ(values.D_i, inner);
        EXPECT_EQ(values.D_a, outer);
    }
};

TEST_F(ShaftInputs, NoShapeIsSelectedAtFirst) {
    EXPECT_FALSE(window.optSelTypSachty[0].selected());
    EXPECT_FALSE(window.optSelTypSachty[1].selected());
    EXPECT_THAT(window.cboTypSachty.items(), IsEmpty());
}

TEST_F(ShaftInputs, CatalogueFollowsTheShape) {
    chooseRound();
    EXPECT_EQ(window.ShaftShape, data::ShaftShape::Round);
    EXPECT_EQ(window.cboTypSachty.items().size(), 8U);
    EXPECT_EQ(window.cboTypSachty.items().front(), "RSA - Q.1 100/../12");
    EXPECT_EQ(window.cboTypSachty.position(), -1);
    EXPECT_FALSE(window.txtPrumerSachtyVnej.enabled());
    EXPECT_TRUE(window.txtPrumerSachtyVnej.greyed());
    chooseRectangular();
    EXPECT_EQ(window.ShaftShape, data::ShaftShape::Rectangular);
    EXPECT_EQ(window.cboTypSachty.items().size(), 10U);
    EXPECT_EQ(window.cboTypSachty.items().back(), "RSE 240/610/95");
    EXPECT_TRUE(window.txtPrumerSachtyVnej.enabled());
    EXPECT_FALSE(window.txtPrumerSachtyVnej.greyed());
}

TEST_F(ShaftInputs, RingOfTheCatalogue) {
    chooseRound();
    project.select(window.cboTypSachty, 7);
    EXPECT_EQ(window.cboTypSachty.text(), "RSC - Q.1 250/..");
    EXPECT_THAT(shown(), ElementsAre("2.50", "", "0.15"));
    expectDiameters(2.5F, 2.8F);
    EXPECT_FALSE(window.txtPrumerSachtyVnej.enabled());
}

TEST_F(ShaftInputs, WallOfARingIsStoredAsItIsShown) {
    // 0.135 m shows as 0.14; the outer diameter is 1.48 m, not 1.47 m.
    chooseRound();
    project.select(window.cboTypSachty, 3);
    EXPECT_THAT(shown(), ElementsAre("1.20", "", "0.14"));
    EXPECT_EQ(values.txtTloustkaSteny, 0.14F);
    expectDiameters(1.2F, 1.48F);
}

TEST_F(ShaftInputs, RectangularShaftOfTheCatalogue) {
    chooseRectangular();
    project.select(window.cboTypSachty, 0);
    EXPECT_THAT(shown(), ElementsAre("2.40", "1.90", "0.10"));
    expectDiameters(2.4095585F, 2.5231326F);
    EXPECT_TRUE(window.txtPrumerSachtyVnej.enabled());
}

TEST_F(ShaftInputs, RoundShaftTyped) {
    chooseRound();
    project.type(window.txtPrumerSachtyVnit, "1.0");
    project.type(window.txtTloustkaSteny, "0.1");
    expectDiameters(1.0F, 1.2F);
    // A typed dimension does not change the catalogue's choice, and the other way round.
    project.select(window.cboTypSachty, 0);
    project.set(window.txtPrumerSachtyVnit, "3");
    EXPECT_EQ(window.cboTypSachty.position(), 0);
    expectDiameters(3.0F, 3.24F);
}

TEST_F(ShaftInputs, SquareShaftTyped) {
    // sqrt(4 / pi) and sqrt(4 x 1.1 x 1.1 / pi): the wall counts once per side
    chooseRectangular();
    boxes("1", "1", "0.1");
    expectDiameters(1.1283791F, 1.241217F);
}

TEST_F(ShaftInputs, LetterInTheWallEmptiesIt) {
    chooseRound();
    boxes("1", "", "0.1");
    project.type(window.txtTloustkaSteny, "x");
    EXPECT_EQ(window.txtTloustkaSteny.text(), "");
    EXPECT_EQ(values.txtTloustkaSteny, 0.0F);
    expectDiameters(1.0F, 1.0F);
}

TEST_F(ShaftInputs, EmptiedFirstBoxOfARoundShaft) {
    chooseRound();
    boxes("1", "", "0.1");
    project.clear(window.txtPrumerSachtyVnit);
    expectDiameters(0.0F, 0.2F);
}

TEST_F(ShaftInputs, NumberOutOfRangeIsIgnored) {
    chooseRound();
    boxes("1", "", "0.1");
    project.set(window.txtPrumerSachtyVnit, "1e50");
    EXPECT_EQ(window.txtPrumerSachtyVnit.text(), "1e50");
    expectDiameters(1.0F, 1.2F);
}

TEST_F(ShaftInputs, EmptiedBoxesOfARectangularShaftKeepTheDiameters) {
    chooseRectangular();
    boxes("1", "1", "0.1");
    project.clear(window.txtTloustkaSteny);
    EXPECT_EQ(values.txtTloustkaSteny, 0.0F);
    expectDiameters(1.1283791F, 1.241217F);
    project.clear(window.txtPrumerSachtyVnej);
    EXPECT_EQ(values.txtPrumerSachtyVnej, 0.0F);
    expectDiameters(1.1283791F, 1.241217F);
    project.clear(window.txtPrumerSachtyVnit);
    expectDiameters(0.0F, 1.241217F);
    // A refused text counts as emptying.
    boxes("1", "1", "0.1");
    project.type(window.txtPrumerSachtyVnit, "x");
    EXPECT_EQ(window.txtPrumerSachtyVnit.text(), "");
    expectDiameters(0.0F, 1.241217F);
}

TEST_F(ShaftInputs, EmptiedFirstBoxOfARectangularShaftKeepsItsSide) {
    // Only the inner diameter is zeroed: the next edit of another box computes with the side in store.
    chooseRectangular();
    boxes("1", "1", "0.1");
    project.clear(window.txtPrumerSachtyVnit);
    project.set(window.txtPrumerSachtyVnej, "2");
    // sqrt(4 x 1 x 2 / pi), sqrt(4 x 1.1 x 2.1 / pi)
    expectDiameters(1.595769F, 1.7149879F);
}

TEST_F(ShaftInputs, EmptiedWallIsZeroForTheNextEdit) {
    chooseRectangular();
    boxes("1", "1", "0.1");
    project.clear(window.txtTloustkaSteny);
    project.set(window.txtPrumerSachtyVnej, "2");
    expectDiameters(1.595769F, 1.595769F);
}

TEST_F(ShaftInputs, ChangingTheShapeEmptiesTheBoxes) {
    chooseRound();
    boxes("1", "", "0.1");
    chooseRectangular();
    EXPECT_THAT(shown(), ElementsAre("", "", ""));
    expectDiameters(0.0F, 0.0F);
    boxes("1", "1", "0.1");
    chooseRound();
    EXPECT_THAT(shown(), ElementsAre("", "", ""));
    // Round again: the outer diameter is 2t + D_i of what is in force, which is nothing.
    expectDiameters(0.0F, 0.0F);
}

TEST_F(ShaftInputs, ChoosingTheSameShapeAgainEmptiesTheBoxesToo) {
    chooseRound();
    project.select(window.cboTypSachty, 2);
    chooseRound();
    EXPECT_THAT(shown(), ElementsAre("", "", ""));
    EXPECT_EQ(window.cboTypSachty.position(), -1);
    expectDiameters(0.0F, 0.0F);
}

TEST_F(ShaftInputs, VariantEnablesTheSandLayer) {
    EXPECT_TRUE(window.optSelTypPudy5[0].selected());
    EXPECT_FALSE(window.txtVyskaPiskVrstvy.enabled());
    EXPECT_TRUE(window.txtVyskaPiskVrstvy.greyed());
    project.click(window.optSelTypPudy5[1]);
    EXPECT_TRUE(window.txtVyskaPiskVrstvy.enabled());
    EXPECT_FALSE(window.txtVyskaPiskVrstvy.greyed());
    EXPECT_EQ(window.SoilVariant, 1);
    // The variable is shared: a swale that is chosen next has the second soil, and the shaft after it.
    project.site("500", "1e-5");
    project.choose(FacilityType::Swale);
    EXPECT_TRUE(window.optSelTypPudy2[1].selected());
    project.click(window.optSelTypPudy2[0]);
    project.choose(FacilityType::Shaft);
    EXPECT_TRUE(window.optSelTypPudy5[0].selected());
    EXPECT_FALSE(window.txtVyskaPiskVrstvy.enabled());
}

TEST_F(ShaftInputs, UpDownCountsFromTheStoredNumber) {
    project.spin(Up);
    EXPECT_EQ(window.txtSachtyCount.text(), "2");
    EXPECT_EQ(values.txtSachtyCount, 2);
    project.spin(Down, 3);
    EXPECT_EQ(window.txtSachtyCount.text(), "1");
    project.set(window.txtSachtyCount, "2.5");
    EXPECT_EQ(values.txtSachtyCount, 2);
    project.spin(Up);
    EXPECT_EQ(window.txtSachtyCount.text(), "3");
    project.set(window.txtSachtyCount, "99");
    project.spin(Up, 2);
    EXPECT_EQ(window.txtSachtyCount.text(), "100");
    project.set(window.txtSachtyCount, "250");
    project.spin(Up);
    EXPECT_EQ(window.txtSachtyCount.text(), "100");
}

TEST_F(ShaftInputs, UpDownAfterAnEmptiedOrRefusedCount) {
    project.clear(window.txtSachtyCount);
    EXPECT_EQ(values.txtSachtyCount, 0);
    project.spin(Up);
    EXPECT_EQ(window.txtSachtyCount.text(), "1");
    project.type(window.txtSachtyCount, "x");
    EXPECT_EQ(window.txtSachtyCount.text(), "");
    project.spin(Down);
    EXPECT_EQ(window.txtSachtyCount.text(), "1");
}

}  // namespace
}  // namespace mero::forms::test
