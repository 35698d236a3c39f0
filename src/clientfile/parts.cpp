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

std::vector<std::string> remarksOn(const Source& source) {
    std::vector<std::string> remarks;
    for (const Part& part : parts())
        if (part.remark != nullptr)
            if (std::string remark = part.remark(source); !remark.empty()) remarks.push_back(std::move(remark));
    return remarks;
}

} // namespace clientfile
