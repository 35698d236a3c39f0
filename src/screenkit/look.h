#pragma once

#include <QSize>

class QApplication;
class QLineEdit;
class QString;
class QWidget;

/// The look that all screens share. Sizes follow the font, colours the palette, so that every screen holds at 200 % and
/// in a dark theme.
namespace screenkit::look {

/// The type of screens and paper. Digits of equal width, so that figures stand in columns; a true minus sign as wide as
/// they are; and every letter of the country's languages in each of its weights, Venda's ṱ ḓ ḽ ṋ ṅ among them.
inline constexpr const char* fontFamily = "Roboto";

/// Style, font and icon of the whole program; once, before the first window.
void apply(QApplication& application);

/// Size of an entry field that shows this many figures.
QSize fieldSize(const QLineEdit* field, int characters);

/// A result is yellow with black text, read-only and out of the tab order; an entry takes the palette's colours.
void setResult(QLineEdit* field, bool result);

/// An input that shows what is entered elsewhere: a shade of its own, read-only and out of the tab order. Yellow would
/// pass it off as something worked out here.
void setLocked(QLineEdit* field, bool locked);

/// The sentence that answers what a screen was asked: read-only, in bold and larger, in the ink of an entry.
void setAnswer(QLineEdit* line);

/// A text that is shown and not entered: on the window's own colour, with no look of a result.
void setShown(QLineEdit* field);

/// A result whose inputs have changed since it was worked out steps back, and says so to who asks and to a screen
/// reader.
void setStale(QLineEdit* result, bool stale);

/// A content that something is wrong with stands out by its colour; `why` is said to who asks and to a screen reader.
/// Empty: nothing is wrong.
void setMarked(QLineEdit* field, const QString& why);

/// The palette has changed while the program runs: shades that are mixed from it are mixed anew.
void followTheme(QLineEdit* line);

/// One line's height in the widget's font: the measure for spaces and panels.
int lineHeight(const QWidget* widget);

} // namespace screenkit::look
