#include "clientfile/partlists.h"

namespace clientfile {

std::vector<Part> analysisParts() { return {}; }

} // namespace clientfile
