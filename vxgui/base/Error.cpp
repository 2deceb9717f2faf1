#include "vxgui/base/Error.h"

namespace vxgui {

Error::Error(int32_t number, String source, String description)
    : number_(number),
      source_(std::move(source)),
      description_(std::move(description)),
      what_((source_.empty() ? description_ : source_ + ": " + description_).Utf8()) {}

Error::~Error() = default;

}  // namespace vxgui
