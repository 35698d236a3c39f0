#pragma once

#include <QPlainTextEdit>
#include <cstddef>

#include "screenkit/bound.h"
#include "screenkit/entryline.h"

namespace screenkit {

class RoomValidator;

/// One line of text, at most as long as the place that it is stored in. What does not fit is cut off where it was put
/// in; a longer text that the file already holds is shown and kept whole.
class TextField : public EntryLine {
    Q_OBJECT
public:
    /// size: characters at most; the field is as wide as `characters`, or as its column if that is 0.
    TextField(const QString& name, Bound<QString> place, int size, int characters = 0, QWidget* parent = nullptr);

    /// As if the user had typed it.
    void enter(const QString& text);

    void fill() override;
    QSize sizeHint() const override;

private:
    void typed(const QString& text);

    Bound<QString> m_place;
    RoomValidator* m_room;
    int m_size;
    int m_characters;
};

/// Notes of several lines. Tab moves on. The room is that of a text field: `size` characters, or as many as the file
/// already holds.
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
    void insertFromMimeData(const QMimeData* source) override;

private:
    void typed();
    void cutToRoom();

    Bound<QString> m_place;
    std::size_t m_size;
    std::size_t m_room; ///< characters at most just now
    bool m_filling = false;
    QString m_before;
};

} // namespace screenkit
