// Makes a failing test print Qt's values as text, not as bytes. The precompiled header includes this file for every
// test.
#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <ostream>

inline void PrintTo(const QString& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

inline void PrintTo(const QByteArray& text, std::ostream* out) { *out << '"' << text.toStdString() << '"'; }

inline void PrintTo(const QStringList& list, std::ostream* out) {
    *out << "{";
    for (qsizetype i = 0; i < list.size(); ++i)
        PrintTo(list[i], &(*out << (i == 0 ? "" : ", ")));
    *out << "}";
}
