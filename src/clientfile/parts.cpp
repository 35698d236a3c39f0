#include "clientfile/parts.h"

#include <iterator>

#include "clientfile/partlists.h"

namespace clientfile {

const std::vector<Part>& parts() {
    static const std::vector<Part> all = [] {
        std::vector<Part> joined;
        for (auto* list : {clientParts, analysisParts, calculatorParts, taxParts, adviceParts}) {
            std::vector<Part> some = list();
            joined.insert(joined.end(), std::make_move_iterator(some.begin()), std::make_move_iterator(some.end()));
        }
        return joined;
    }();
    return all;
}

std::string remarkOn(const Part& part, const Source& source) {
    return part.remark != nullptr ? part.remark(source) : std::string();
}

} // namespace clientfile
