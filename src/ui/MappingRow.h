#pragma once

#include <QAbstractButton>
#include <QString>
#include <optional>

#include "AppLanguage.h"
#include "GamepadButton.h"
#include "KeyboardKey.h"

namespace vantorel {

/// One controller button and its key, as a button that opens the key picker. It is drawn anew only when
/// something about it has changed.
class MappingRow : public QAbstractButton {
  Q_OBJECT

 public:
  static constexpr int rowHeight = 44;
  static constexpr int leftCellWidth = 160;  ///< the rule follows
  static constexpr int ruleWidth = 2;

  /// What the row shows.
  struct Content {
    AppLanguage language = AppLanguage::english;
    std::optional<KeyboardKey> key;  ///< none: the button is not mapped
    bool isActive = false;           ///< the button is the one that was pressed last

    friend bool operator==(const Content&, const Content&) = default;
  };

  explicit MappingRow(GamepadButton rowButton, QWidget* parent = nullptr);

  void show(const Content& newContent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override { return sizeHint(); }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  QString buttonName() const;
  QString keyName() const;
  void describe();
  void paintButtonCell(QPainter& painter) const;
  void paintKeyCell(QPainter& painter) const;

  GamepadButton button;
  Content content;
};

}  // namespace vantorel
