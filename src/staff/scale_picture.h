#pragma once
#include "staff/position.h"
#include "staff/surface.h"

#include <vector>

namespace staff {

/// Size of every scale picture, in logical pixels.
inline constexpr int pictureWidth = 270;
inline constexpr int pictureHeight = 86;
/// Pictures of scales are numbered 0 to `pictureCount` - 1; some numbers no scale reaches.
inline constexpr int pictureCount = 80;
/// A quarter note, as in the tempo of an exercise.
inline constexpr int quarterNote = pictureCount;

/// Size of a picture, in logical pixels.
struct PictureSize {
    int width, height;
};
constexpr PictureSize pictureSize(int number) {
    return number == quarterNote ? PictureSize{12, 26} : PictureSize{pictureWidth, pictureHeight};
}

/// A scale as the picture store numbers it.
struct ScalePicture {
    int skal_typ;
    int skala_nr;
    bool sameFinal;  ///< modes all from C; otherwise all with one key signature
};

/// @return false for a number that no scale reaches.
bool findPicture(int number, ScalePicture& picture);

/// The notes of a scale in its picture, ascending from C4 (or the degree of the mode), spelled:
/// each letter once where it has seven tones, a tetrachord on four letters.
std::vector<Pitch> picturePitches(const ScalePicture& picture);

/// Draws a picture; of a scale five lines, clef, heads, accidentals. A number that no picture has
/// draws nothing.
void paintPicture(Surface& target, int number);

}  // namespace staff
