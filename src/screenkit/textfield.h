#pragma once

#include <QPlainTextEdit>
#include <cstddef>

#include "screenkit/bound.h"
#include "screenkit/entryline.h"

namespace screenkit {

class RoomValidator;

/// One line of text, at most as long as its place allows. Text that does not fit is cut where it was inserted; a longer
/// text from the file is shown and kept in full.
class TextField : public EntryLine {
    Q_OBJECT
public:
    /// size: the most characters; the field is as wide as `characters`, or as its column if that is 0.
    TextField(const QString& name, Bound<QString> place, int size, int characters = 0, QWidget* parent = nullptr);

    /// Enters a text as if the user had typed it.
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

/// Notes of several lines. Tab moves to the next field. The longest text is `size` characters, or as many as the file
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
    std::size_t m_room; ///< the most characters at the moment
    bool m_filling = false;
    QString m_before;
};

} // namespace screenkit
