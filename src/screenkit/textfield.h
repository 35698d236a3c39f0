#pragma once

#include <QLineEdit>
#include <QPlainTextEdit>

#include "screenkit/bound.h"
#include "screenkit/field.h"

namespace screenkit {

/// One line of text, at most as long as the place that it is stored in.
class TextField : public QLineEdit, public Field {
    Q_OBJECT
public:
    /// size: characters at most; the field is as wide as `characters`, or as its column if that is 0.
    TextField(const QString& name, Bound<QString> place, int size, int characters = 0, QWidget* parent = nullptr);

    /// As if the user had typed it.
    void enter(const QString& text);

    QWidget* widget() override { return this; }
    void fill() override;
    void setResult(bool result) override;
    void takeFocus() override;
    QSize sizeHint() const override;

protected:
    void focusInEvent(QFocusEvent* event) override;

private:
    void typed(const QString& text);

    Bound<QString> m_place;
    int m_characters;
};

/// Notes of several lines. Tab moves on. Typing stops at `size` characters; a longer text that the file already holds
/// is shown and kept whole.
class MemoField : public QPlainTextEdit, public Field {
    Q_OBJECT
public:
    MemoField(const QString& name, Bound<QString> place, int size, QWidget* parent = nullptr);

    QWidget* widget() override { return this; }
    void fill() override;
    void takeFocus() override;
    QSize sizeHint() const override;

protected:
    void wheelEvent(QWheelEvent* event) override;

private:
    void typed();

    Bound<QString> m_place;
    int m_size;
    bool m_filling = false;
    QString m_before;
};

} // namespace screenkit
