// The section pictures of the filter windows: each is a schematic drawn in
// black on white, and it stays clear of the corners where its window writes
// over it (a title above, the results to the right of the pi section).
#include <QImage>

#include "ui/geometry.hpp"
#include "ui/pictures.hpp"
#include "ui_test_support.hpp"

namespace bm::ui::test {
namespace {

// Ink is drawn wherever a pixel is not fully transparent.
int InkedPixels(const QImage& image, QRect area) {
    int inked = 0;
    area = area.intersected(image.rect());
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (qAlpha(image.pixel(x, y)) != 0) ++inked;
    return inked;
}

TEST(FilterPictures, EachSectionIsBlackOnWhite) {
    for (const char* name : {"passaalto-pigreco", "passaalto-T", "passabasso-pigreco", "passabasso-T"}) {
        EXPECT_TRUE(IsKnownPicture(name)) << name;
        const QImage image = RenderPicture(name, QSize(240, 160)).toImage();
        int black = 0, white = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x) {
                const QColor c = image.pixelColor(x, y);
                if (c.alpha() < 255) continue;
                if (c.lightness() < 40) ++black;
                if (c.lightness() > 250) ++white;
            }
        EXPECT_GT(black, 300) << name << ": the schematic";
        EXPECT_GT(white, 240 * 160 / 2) << name << ": the card it stands on";
    }
}

class FilterWindowPictures : public UiTest {
protected:
    // The picture as the window shows it, and the ink under one of its labels.
    int inkUnder(std::string_view form, std::string_view image, std::string_view label) {
        const ControlState& pic = state(form, image);
        const ControlState& over = state(form, label);
        const QImage drawn =
            RenderPicture(PictureName(form, image), QSize(Px(pic.rect.width), Px(pic.rect.height))).toImage();
        const QRect covered = ToPixels(over.rect).translated(-Px(pic.rect.left), -Px(pic.rect.top));
        return InkedPixels(drawn, covered);
    }
    std::string PictureName(std::string_view form, std::string_view image) {
        return program.state(form)->def->at(ControlKey::Parse(image)).picture;
    }
    void calculate(std::string_view form, std::string_view image) {
        ASSERT_EQ(program.open(form, OpenModeless), Program::Status::Running);
        ASSERT_EQ(program.click(form, ControlKey::Parse(image)), Program::Status::Running);
        ASSERT_EQ(program.edit(form, ControlKey::Parse("txtfrequenza"), "7"), Program::Status::Running);
        ASSERT_EQ(program.click(form, ControlKey::Parse("cmdcalcola")), Program::Status::Running);
    }
};

TEST_F(FilterWindowPictures, PiSectionLeavesTheResultsAndTitleClear) {
    for (const char* form : {"frmpassaalto", "frmpassabasso"}) {
        calculate(form, "Image1");
        EXPECT_EQ(inkUnder(form, "Image1", "lblinduttanza"), 0) << form;
        EXPECT_EQ(inkUnder(form, "Image1", "lblcapacità"), 0) << form;
        EXPECT_EQ(inkUnder(form, "Image1", "lblpigreco"), 0) << form;
    }
}

TEST_F(FilterWindowPictures, TSectionMovedLeftLeavesItsTitleClear) {
    for (const char* form : {"frmpassaalto", "frmpassabasso"}) {
        calculate(form, "Image2");
        EXPECT_EQ(inkUnder(form, "Image2", "lblT"), 0) << form;
    }
}

}  // namespace
}  // namespace bm::ui::test
