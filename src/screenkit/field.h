#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <optional>

namespace screenkit {

class Field;

/// Why a field's content is refused: the message, and where the focus goes after it. Without a text there is no
/// message, but the user stays in the field.
struct Complaint {
    QString text = {};
    QString title = {};
    Field* focus = nullptr; ///< nothing: the field itself
    bool rings = false;     ///< ring the bell: the typed text was not understood
};

/// A rule for a field's number or day.
struct Limit {
    std::function<bool(double)> holds;
    std::function<Complaint()> complaint; ///< called when shown, since the text may contain another field's content
    std::function<double()> instead = {}; ///< for a number: the value that the field gets instead
};

/// The part of every entry field that the screen works with, whatever the field holds.
///
/// A field writes to the record at each edit by the user and calls `edited`; filling it is no edit. When the user
/// leaves it, `left` is called; the screen then asks for a complaint, shows it and brings the focus back.
class Field {
public:
    virtual ~Field() = default;
    virtual QWidget* widget() = 0;
    /// The control with the focus while the user is in the field; in a table the cell editor.
    virtual QWidget* entry() { return widget(); }
    /// True for the field's own control and every control inside it.
    virtual bool holds(const QWidget* control) { return widget() == control || widget()->isAncestorOf(control); }
    /// Shows the record's content.
    virtual void fill() = 0;
    /// What is wrong with the user's entry, if anything. A call may clear the field, for example if its text is not a
    /// date.
    virtual std::optional<Complaint> complaint() { return {}; }
    /// What is wrong with content that the user did not enter; the field marks it. It is reported but never blocks:
    /// content from a file must not keep the user from leaving.
    virtual std::optional<Complaint> markStoredFault() { return {}; }
    /// Forgets that the user entered the content: another client's record is shown now.
    virtual void forgetEntry() {}
    /// The field's input to a calculation: a number, a day, the index of an option, a tick as 1 or 0. Nothing for a
    /// result or a text.
    virtual std::optional<double> figure() const { return {}; }
    /// Makes it a result: yellow, read-only and out of the tab order. The four figures of a loan take turns.
    virtual void setResult(bool) {}
    /// An input that is entered elsewhere (the total of a list): read-only, in its own shade.
    virtual void setLocked(bool) {}
    /// Takes the focus and selects the whole content.
    virtual void takeFocus() = 0;

    std::function<void()> edited;
    std::function<void()> left;
};

} // namespace screenkit
