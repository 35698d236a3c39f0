#pragma once

#include <QString>
#include <memory>

#include "clientfile/parts.h"
#include "reports/document.h"

namespace clientfile {

/// What goes into the client file, as this user ticked it last; kept among the user's own settings. At first
/// everything but the long tables.
class Ticks {
public:
    static constexpr const char* cover = "cover";
    static constexpr const char* contents = "contents";

    /// name: of a part, or one of the two above.
    bool has(const QString& name) const;
    void set(const QString& name, bool on);
    bool has(const Part& part, Choice choice) const;
    void set(const Part& part, Choice choice, bool on);
    /// All choices ticked for a part.
    Choices of(const Part& part) const;
};

/// The choice's name in the settings, and its words beside a tick box.
QString nameOf(Choice choice);
QString captionOf(Choice choice);

/// The ticked parts that can be printed, behind a cover and the remarks on their results that differ. The plan keeps
/// the source alive.
reports::DocumentPlan planOf(const std::shared_ptr<const Source>& source, const Ticks& ticks);

/// The names of the client and of the document in the name of its file: "Botha" and "client file 2026-11-23".
QString fileClientOf(const assessment::Assessment& record);
QString fileTitleOf(double today);

} // namespace clientfile
