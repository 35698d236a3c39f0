#pragma once

#include <QLineEdit>

#include "screenkit/field.h"

namespace screenkit {

/// What every one-line field does when the user comes and goes.
///
/// Coming by key selects all of it, at once, so that what is typed next is never swallowed. A box, a menu, the
/// calendar or another program in front is no leaving: coming back from there finds the text and its selection as
/// they were. The wheel does nothing.
///
/// A text that can't be kept stays where it is, marked once the user has left it, until it is put right or Escape gives
/// back what stood there. The record holds the latter meanwhile, and a refill leaves the text alone while the user is
/// in the field.
class EntryLine : public QLineEdit, public Field {
    Q_OBJECT
public:
    QWidget* widget() override { return this; }
    void setResult(bool result) override;
    void setLocked(bool locked) override;
    void takeFocus() override;
    /// Enter has taken the content: shows it in its usual form, wholly selected.
    void confirm();
    /// True while what stands here can't be kept.
    bool isRefused() const { return m_refusal.has_value(); }
    /// Undoes what has been refused, or else what was entered since the user came in, and selects what stands there.
    virtual void giveBack() {}

protected:
    enum class OnClick { setsCursor, selectsAll };
    EntryLine(const QString& name, OnClick onClick, QWidget* parent);

    /// The user has come in.
    virtual void entered() {}
    /// The user has left: show the content in its usual form.
    virtual void tidy() {}

    void refuse(Complaint why) { m_refusal = std::move(why); }
    const std::optional<Complaint>& why() const { return m_refusal; }
    void accept();
    /// Why the text can't be kept, if so; marks it.
    std::optional<Complaint> refusal();
    /// True if a refill must leave the text for the user to put right.
    bool keepsText() const;

    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    OnClick m_onClick;
    bool m_selectOnRelease = false;
    std::optional<Complaint> m_refusal;
    bool m_marked = false;
};

} // namespace screenkit
