#pragma once

#include <QColor>

/// The palette of the whole interface. Each colour is computed on first use and shared from then on.
namespace vantorel::AppTheme {

const QColor& background();       ///< light grey: the window
const QColor& cardBackground();   ///< white: cards
const QColor& accent();           ///< red: emphasis, errors, "off"
const QColor& secondaryAccent();  ///< blue: secondary emphasis, keyboard focus
const QColor& success();          ///< green: "on", granted, connected
const QColor& warning();          ///< pink: warnings
const QColor& text();             ///< near-black: text
const QColor& secondaryText();    ///< warm dark grey: captions, hints
const QColor& borderColor();      ///< black: all outlines

/// `color` at `opacity` (0 to 1) of its own.
QColor faded(const QColor& color, double opacity);

}  // namespace vantorel::AppTheme
