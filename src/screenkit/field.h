#pragma once

#include <QString>
#include <QWidget>
#include <functional>
#include <optional>

namespace screenkit {

class Field;

/// Why a field's content can't stand: the box that says so, and where the focus goes after it. Without a text there is
/// no box; the user stays all the same.
struct Complaint {
    QString text = {};
    QString title = {};
    Field* focus = nullptr; ///< nothing: back to the field itself
    bool rings = false;     ///< the bell: what was typed has not been understood
};

/// What a field's number or day must be.
struct Limit {
    std::function<bool(double)> holds;
    std::function<Complaint()> complaint; ///< asked when it is shown, as its words may hold another field's content
    std::function<double()> instead = {}; ///< of a number: what the field goes back to
};

/// What the screen does with every entry field, whatever it holds.
///
/// A field writes to the record at each of the user's edits and calls `edited`; being filled never counts as an edit.
/// When the user leaves it, `left` is called; the screen then asks for a complaint, shows it and brings the focus back.
class Field {
public:
    virtual ~Field() = default;
    virtual QWidget* widget() = 0;
    /// The control that holds the focus while the user is in it: of a table the cell in edit.
    virtual QWidget* entry() { return widget(); }
    /// True for each control that is the field's or lies inside it.
    virtual bool holds(const QWidget* control) { return widget() == control || widget()->isAncestorOf(control); }
    /// Shows what the record holds.
    virtual void fill() = 0;
    /// What is wrong with what the user has put there, if anything. A field may clear itself here (a date that is
    /// none).
    virtual std::optional<Complaint> complaint() { return {}; }
    /// What is wrong with a content that the user found there, which the field shows by a mark. It is told, but never
    /// held against anyone: what a file brought must not lock the way out.
    virtual std::optional<Complaint> markFault() { return {}; }
    /// What it holds is no longer the user's doing: another client's record stands behind it.
    virtual void disown() {}
    /// What a calculation takes from the field: a number, a day, the index of an option, a tick as 1 or 0. Nothing of a
    /// result, or of words.
    virtual std::optional<double> figure() const { return {}; }
    /// A result: yellow, read-only and out of the tab order. The four figures of a loan take turns at it.
    virtual void setResult(bool) {}
    /// An input that shows what is entered elsewhere (the total of a list): read-only, in a shade of its own.
    virtual void setLocked(bool) {}
    /// The focus, with the whole content selected.
    virtual void takeFocus() = 0;

    std::function<void()> edited;
    std::function<void()> left;
};

} // namespace screenkit
