#include "assessment/filetextstable.h"

#include "assessment/tables.h"

namespace assessment {

namespace {
constexpr int markSize = 32; // 128 bits in hexadecimal digits
constexpr int noLimit = 0;   // the screen limits what is typed
} // namespace

const FieldTable<FileTexts>& fileTextsTable() {
    static const FieldTable<FileTexts> table("ClientFileTexts",
                                             {
                                                 {"DCLNO", zero(Double), Rule::key},
                                                 {"Mark", Text(markSize)},
                                                 {"Basis", Memo(noLimit), in<&FileTexts::basis>},
                                                 {"Considered", Memo(noLimit), in<&FileTexts::considered>},
                                                 {"Recommendation", Memo(noLimit), in<&FileTexts::recommendation>},
                                                 {"Replacement", Memo(noLimit), in<&FileTexts::replacement>},
                                                 {"Decision", Memo(noLimit), in<&FileTexts::decision>},
                                             },
                                             {{"DCLNOIndex", "DCLNO"}});
    return table;
}

const TableDescription& fileTextsMark() {
    static const TableDescription table(persDetailsTable().name(), {{"FileTextsMark", Text(markSize)}}, {});
    return table;
}

} // namespace assessment
