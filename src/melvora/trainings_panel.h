#pragma once
#include "melvora/host.h"
#include "melvora/text_table.h"

#include <QLabel>
#include <QPushButton>
#include <QWidget>

namespace melvora {

/// The saved trainings of one user, and the button that deletes the chosen one.
class TrainingsPanel final : public QWidget {
    Q_OBJECT
  public:
    explicit TrainingsPanel(Host& host, QWidget* parent = nullptr);
    /// Shows its texts in the language in force; what it lists comes with showUser().
    void retranslate();
    /// @param name how the user is called
    void showUser(const QString& key, const QString& name);
    QPushButton* button() const { return remove_; }

  private:
    void showButton();
    void remove();
    /// Branch and kind, for example "Gehörbildung: bestimmen".
    QString exerciseName(const Training& training) const;

    Host& host_;
    QString name_;
    QList<Training> trainings_;
    QLabel* heading_;
    TextTable* table_;
    QPushButton* remove_;
    QLabel* hint_;
};

}  // namespace melvora
