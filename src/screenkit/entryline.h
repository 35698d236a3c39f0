#pragma once

#include <QLineEdit>

#include "screenkit/field.h"

namespace screenkit {

/// What every one-line field does when the user comes and goes.
///
/// Coming by key selects all of it, at once, so that what is typed next is never swallowed. A box, a menu, the
/// calendar or another program in front is no leaving: coming back from there finds the text and its selection as
/// they were. The wheel does nothing.
class EntryLine : public QLineEdit, public Field {
    Q_OBJECT
public:
    QWidget* widget() override { return this; }
    void setResult(bool result) override;
    void takeFocus() override;

protected:
    enum class OnClick { setsCursor, selectsAll };
    EntryLine(const QString& name, OnClick onClick, QWidget* parent);

    /// The user has come in.
    virtual void entered() {}
    /// The user has left: show the content in its usual form.
    virtual void tidy() {}

    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;

private:
    OnClick m_onClick;
    bool m_selectOnRelease = false;
};

} // namespace screenkit
