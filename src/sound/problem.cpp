#include "sound/problem.h"

#include "base/array.h"
#include "core/wort.h"

namespace sound {

void showProblem(form::Label& label, SoundProblem problem, core::Worte& words) {
    namespace wort = core::wort;
    constexpr std::array texts{wort::none, wort::noSoundfont, wort::noAudioDevice,
                               wort::audioDeviceGone, wort::noSoundLibrary};
    const wort::Id why = base::at(texts, static_cast<int>(problem));
    label.caption = why == wort::none ? std::string() : words.Wort(why);
    label.visible = why != wort::none;
}

}  // namespace sound
