#pragma once
#include <QTranslator>

namespace look {

/// The toolkit's own texts, as in file dialogs and the menus of text fields, in the language of the
/// program for as long as this lives. Without the toolkit's translations they stay English.
class ToolkitTexts {
  public:
    /// @param suffix of the language, for example "de".
    void take(const QString& suffix);

  private:
    QTranslator texts_;
};

}  // namespace look
