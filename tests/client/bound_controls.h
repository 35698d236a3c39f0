#pragma once

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPlainTextEdit>

#include "assessment/tables.h"

namespace clienttest {

/// A control, the stored field that it must hold, what is typed into it, and the record's value after that.
struct BoundControl {
    const assessment::FieldLine* field;
    QString control, text;
    store::Value held;
};

/// Leaves out the fields that the screen has no control for: a new field may be stored before it has one.
inline void keepThoseOn(const QWidget* screen, std::vector<BoundControl>& all) {
    std::erase_if(all, [&](const BoundControl& each) { return screen->findChild<QWidget*>(each.control) == nullptr; });
}

template <class Row>
void expectHeld(const std::vector<BoundControl>& all, Row& row) {
    for (const BoundControl& each : all)
        EXPECT_EQ(assessment::valueAt(each.field->at(&row)), each.held) << each.field->name;
}

inline QString textIn(const QWidget* control) {
    if (const auto* memo = qobject_cast<const QPlainTextEdit*>(control)) return memo->toPlainText();
    return qobject_cast<const QLineEdit*>(control)->text().remove(".000").remove(".00");
}

} // namespace clienttest
