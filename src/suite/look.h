#pragma once
#include <QColor>
#include <QFont>
#include <QMargins>
#include <QWidget>

/// The calm look that the windows of both programs share.
namespace suite {

inline const QColor page{0xF5, 0xF4, 0xF1};
inline const QColor line{0xCF, 0xCB, 0xC2};
inline const QColor text{0x22, 0x26, 0x2B};
inline const QColor muted{0x6A, 0x6E, 0x75};
inline const QColor accent{0x1F, 0x5F, 0x99};
inline const QColor warning{0x8A, 0x3B, 0x00};
inline constexpr int margin = 12;
inline constexpr int gap = 8;
inline constexpr int radius = 6;
inline constexpr QMargins pageMargins{margin, margin, margin, margin};
inline constexpr QMargins dialogMargins{18, 16, 18, 14};

/// Gives the application, which must be there, this look; lists to choose from get names.
void apply();
/// Gives all that can be used in a window a frame that contrasts at least 3 to 1.
void darkenFrames(QWidget& window);
/// How much larger than on a small screen everything is: 1 to 1.4, by the screen's height.
double scale();
/// Scales the widget's font and sets its weight.
void font(QWidget& widget, double factor, QFont::Weight weight = QFont::Normal);
/// Text colour, and background where valid.
void colours(QWidget& widget, const QColor& letters, const QColor& background = {});
/// Contrast of two colours, 1 to 21.
double contrast(const QColor& one, const QColor& other);
/// The letters, as much darker as it takes to be read on a light ground: at least 4.5 to 1. On a
/// dark ground as they are.
QColor readable(QColor letters, const QColor& ground);
/// The colour of a line around an area of that colour that is seen on the page: at least 3 to 1.
QColor edge(QColor area);
/// Marks the button that leads on: bold, and never narrow.
void leadingButton(QWidget& button);
/// A line that stands aside: small and muted.
void quiet(QWidget& label);

}  // namespace suite
