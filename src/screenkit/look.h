#pragma once

#include <QSize>

class QApplication;
class QLineEdit;
class QString;
class QWidget;

/// The look that all screens share. Sizes follow the font and colours the palette, so that every screen works at 200 %
/// and in a dark theme.
namespace screenkit::look {

/// The typeface of screens and paper. Its digits have equal widths, so that figures line up; its minus sign is as wide
/// as they are; and every weight has all letters of the country's languages, including Venda's ṱ ḓ ḽ ṋ ṅ.
inline constexpr const char* fontFamily = "Roboto";

/// Sets style, font and icon of the whole program. Call it once, before the first window.
void apply(QApplication& application);

/// Size of an entry field for this many digits.
QSize fieldSize(const QLineEdit* field, int characters);

/// A result is yellow with black text, read-only and out of the tab order; an entry takes the palette's colours.
void setResult(QLineEdit* field, bool result);

/// An input that is entered elsewhere: its own shade, read-only and out of the tab order. Yellow would present it as a
/// result.
void setLocked(QLineEdit* field, bool locked);

/// The sentence that answers the screen's question: read-only, bold and larger, in the colour of an entry.
void setAnswer(QLineEdit* line);

/// A text that is shown and not entered: on the window's background, not like a result.
void setShown(QLineEdit* field);

/// Fades a result, a line or a table, whose inputs have changed since it was calculated. Its tip says so, and so does its description for a
/// screen reader.
void setStale(QWidget* result, bool stale);

/// Colours a field whose content has a fault. `why` becomes its tip and its description for a screen reader. Empty: no
/// fault.
void setMarked(QLineEdit* field, const QString& why);

/// Call it when the palette changes: mixes the shades anew.
void followTheme(QLineEdit* line);

/// The height of a line in the widget's font: the unit for spaces and panels.
int lineHeight(const QWidget* widget);

} // namespace screenkit::look
