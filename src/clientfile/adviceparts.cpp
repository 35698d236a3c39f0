#include "clientfile/partlists.h"

namespace clientfile {

std::vector<Part> adviceParts() { return {}; }

} // namespace clientfile
