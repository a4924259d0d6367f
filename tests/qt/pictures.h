#pragma once
#include "stage.h"

#include <string>
#include <vector>

inline const std::vector<std::string> allLanguages{"Deutsch", "English", "Español", "Français"};

/// Looks at a form's window at the sizes of a small and of a large screen: every text has its room,
/// nothing lies over anything else, all that can be used has a name, and contrasts; the form has a
/// help page. MELVORA_SCREENSHOTS names a folder for pictures of what was seen.
void lookAt(Stage& stage, const std::string& form, const std::string& picture);
