#pragma once
#include "stage.h"

#include <QWidget>

#include <string>
#include <vector>

inline const std::vector<std::string> allLanguages{"Deutsch", "English", "Español", "Français"};

/// MELVORA_SCREENSHOTS names a folder for pictures of what the tests have seen.
void keepPicture(QWidget& window, const std::string& name);

/// Every text has its room, nothing lies over anything else, and all that can be used has a name.
void expectReadable(QWidget& window);

/// Looks at a form's window at the sizes of a small and of a large screen.
void lookAt(Stage& stage, const std::string& form, const std::string& picture);
