#pragma once

#include <QLineEdit>

#include "screenkit/field.h"

namespace screenkit {

/// What every one-line field does when the user enters and leaves it.
///
/// Entering by key selects all of it at once, so that the next key replaces it. A message box, a menu, the calendar or
/// another program does not count as leaving: afterwards text and selection are as before. The mouse wheel does
/// nothing.
///
/// A refused text stays, and is marked once the user has left the field, until it is corrected or Escape restores the
/// last accepted content. Meanwhile the record holds that content. Refilling does not change the text while the user is
/// in the field.
class EntryLine : public QLineEdit, public Field {
    Q_OBJECT
public:
    QWidget* widget() override { return this; }
    void setResult(bool result) override;
    void setLocked(bool locked) override;
    void takeFocus() override;
    /// Called when Enter has accepted the content: shows it in its usual form, all of it selected.
    void confirm();
    /// True while the text is refused.
    bool isRefused() const { return m_refusal.has_value(); }
    /// Restores the accepted content if the text is refused, else the content from when the user came in. Selects it.
    virtual void giveBack() {}

protected:
    enum class OnClick { setsCursor, selectsAll };
    EntryLine(const QString& name, OnClick onClick, QWidget* parent);

    /// Called when the user enters the field.
    virtual void entered() {}
    /// Called when the user leaves: shows the content in its usual form.
    virtual void tidy() {}

    void refuse(Complaint why) { m_refusal = std::move(why); }
    const std::optional<Complaint>& why() const { return m_refusal; }
    void accept();
    /// Why the text is refused, if it is; marks it.
    std::optional<Complaint> refusal();
    /// True if refilling must leave the text for the user to correct.
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
