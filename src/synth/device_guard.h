#pragma once
#include "synth/audio_device.h"

#include <memory>

namespace synth {

/// Opens and closes audio devices whose server may hang: what takes too long is left behind on its
/// own thread and can no longer pull. While such a one hangs, no other is opened.
class DeviceGuard {
  public:
    /// Opens a device, or gives null when there is none or it does not come within two seconds.
    std::unique_ptr<AudioDevice> open(const OpenDevice& open, Pull pull);

  private:
    std::weak_ptr<void> last_;
};

}  // namespace synth
