#pragma once
#include <QComboBox>

#include <functional>

namespace melvora {

/// A list to choose from that the wheel changes only while it has the focus. A text that is too
/// long is cut; a tool tip tells the whole, or what setToolTip() says.
class Combo final : public QComboBox {
  public:
    /// @param refresh asked for the entries before they unfold
    explicit Combo(QWidget* parent, std::function<void()> refresh = {});
    void showPopup() override;

  protected:
    void initStyleOption(QStyleOptionComboBox* option) const override;
    bool event(QEvent* event) override;

  private:
    QString cut(const QStyleOptionComboBox& option) const;

    std::function<void()> refresh_;
};

}  // namespace melvora
