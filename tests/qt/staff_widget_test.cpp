// The staff on screens of any scale, and drags over it.
#include "qt/staff_widget.h"

#include "qt/painter_surface.h"
#include "staff/glyphs.h"
#include "staff/ink.h"
#include "staff/sheet.h"

#include <QImage>

#include <gtest/gtest.h>

#include <functional>
#include <set>

namespace {

/// What a surface looks like at a scale, on white.
template <class F>
QImage painted(double scale, F draw) {
    QImage image((QSizeF(160, 145) * scale).toSize(), QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.scale(scale, scale);
    qt::PainterSurface surface(painter);
    draw(surface);
    return image;
}

const std::vector<double> scales{1, 1.25, 1.375, 1.5, 2, 2.5, 5};

TEST(PainterSurface, StaffLinesAreCrispAndEquallyThickAndFarApart) {
    for (const double scale : scales) {
        SCOPED_TRACE(scale);
        const QImage image =
            painted(scale, [](auto& s) { staff::paintLines(s, 160, staff::topLine(0)); });
        std::vector<int> begins, ends;
        for (int y = 1; y < image.height(); ++y) {
            const QRgb here = image.pixel(5, y), above = image.pixel(5, y - 1);
            ASSERT_TRUE(here == qRgb(0, 0, 0) || here == qRgb(255, 255, 255)) << "grey at " << y;
            if (here != above) (here == qRgb(0, 0, 0) ? begins : ends).push_back(y);
        }
        ASSERT_EQ(begins.size(), 5U);
        std::set<int> thickness, distance;
        for (std::size_t i = 0; i < 5; ++i) {
            thickness.insert(ends[i] - begins[i]);
            if (i > 0) distance.insert(begins[i] - begins[i - 1]);
        }
        EXPECT_EQ(thickness, std::set{static_cast<int>(std::lround(scale))});
        EXPECT_EQ(distance.size(), scale * 8 == std::round(scale * 8) ? 1U : 2U);
    }
}

TEST(PainterSurface, WhatIsTakenAwayLeavesNoTrace) {
    const auto preview = [](auto& s) {
        for (const int colour : {staff::ink::grey, staff::ink::white})
            s.line(54, 40, 67, 40, staff::lineColour(colour), staff::LineStyle::Solid);
    };
    const auto note = [](auto& s) {
        staff::NotenkopfMalen(s, 80, 84, staff::ink::red);
        staff::DoppelBeMalen(s, 58, 67);
        staff::SpalteLoeschen(s, 16, 80);
    };
    for (const double scale : scales) {
        SCOPED_TRACE(scale);
        const auto after = [scale](const std::function<void(qt::PainterSurface&)>& draw) {
            return painted(scale, [&](auto& s) {
                staff::paintLines(s, 160, 16);
                draw(s);
            });
        };
        const QImage clean = after([](auto&) {});
        EXPECT_EQ(after(preview), clean);
        EXPECT_EQ(after(note), clean);
    }
}

TEST(StaffWidget, GrowsInTheMiddleAndTellsPlaces) {
    Sheet sheet(6, 0, 60);
    qt::StaffWidget widget(sheet.staff.PicBNot);
    for (const auto& [size, scale] : {std::pair{QSize(362, 158), 1.0},
                                      {{500, 158}, 1.0},
                                      {{543, 237}, 1.5},
                                      {{2000, 1000}, 4.0}}) {
        SCOPED_TRACE(scale);
        widget.resize(size);
        EXPECT_DOUBLE_EQ(widget.scale(), scale);
        const QPointF middle = widget.placeOf(sheet.staff.PicBNot, QPointF(362 / 2.0, 158 / 2.0));
        EXPECT_NEAR(middle.x(), size.width() / 2.0, 1);
        EXPECT_NEAR(middle.y(), size.height() / 2.0, 1);
        const QPointF inside = widget.placeOf(sheet.staff.PicB(0), {0, 0});
        EXPECT_DOUBLE_EQ(inside.y(), widget.placeOf(sheet.staff.PicBNot, {0, 12}).y());
        const QImage image = widget.grab().toImage();
        const QPointF line = widget.placeOf(sheet.staff.PicB(0), {340.5, 80.5});
        EXPECT_EQ(image.pixelColor(static_cast<int>(line.x()), static_cast<int>(line.y())),
                  QColor(Qt::black));
    }
}

TEST(StaffWidget, ADragIsSeenOnTheVisibleSurfaceAloneAndDropsNowhereElse) {
    Sheet sheet(6, 0, 60);
    sheet.showTask();
    qt::StaffWidget widget(sheet.staff.PicBNot);
    widget.resize(900, 500);
    const form::Control& sharp = sheet.palette.NotP(3);
    const staff::Canvas& seen = sheet.staff.PicB(sheet.staff.SchlZ());
    const QPointF column = widget.placeOf(seen, QPointF(sheet.staff.layout().x(2), 80));
    const QPointF corner = widget.placeOf(seen, QPointF(seen.bounds().width, seen.bounds().height));
    const QImage clean = widget.grab().toImage();
    for (const QPointF outside : {QPointF(column.x(), 2), QPointF(column.x(), corner.y() + 3),
                                  QPointF(2, column.y()), QPointF(corner.x() + 3, column.y())}) {
        EXPECT_TRUE(widget.dragTo(sharp, column));
        EXPECT_NE(widget.grab().toImage(), clean) << "a preview";
        EXPECT_FALSE(widget.dragTo(sharp, outside));
        EXPECT_EQ(widget.grab().toImage(), clean) << "gone";
        EXPECT_FALSE(widget.dropAt(sharp, outside));
    }
    EXPECT_TRUE(widget.dragTo(sharp, column));
    widget.dragAway();
    EXPECT_EQ(widget.grab().toImage(), clean);
    EXPECT_TRUE(widget.dropAt(sharp, column));
    EXPECT_EQ(sheet.staff.NotSelb(2).accidental, 1);
}

}  // namespace
