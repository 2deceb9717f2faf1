#include "vxgui/platform/core7/SystemCodes.h"

#include <algorithm>
#include <cerrno>
#include <iterator>

#include "vxgui/platform/messages.h"

namespace vxgui::core7 {
namespace {

struct CodeText {
    uint32_t code;
    const char* text;
};

// In the order of the codes.
constexpr CodeText kTexts[] = {
    {0, "The operation succeeded"},
    {1, "Invalid function"},
    {2, "File not found"},
    {3, "Path not found"},
    {4, "Too many open files"},
    {5, "Access denied"},
    {6, "Invalid handle"},
    {8, "Out of memory"},
    {11, "Invalid format"},
    {13, "Invalid data"},
    {14, "Out of storage"},
    {15, "Drive not found"},
    {19, "The medium is write-protected"},
    {21, "The device is not ready"},
    {23, "Data error (checksum)"},
    {29, "Write fault"},
    {30, "Read fault"},
    {31, "A device is not working"},
    {32, "The file is in use by another process"},
    {33, "A part of the file is locked by another process"},
    {38, "End of file reached"},
    {39, "The disk is full"},
    {50, "The request is not supported"},
    {80, "The file exists"},
    {82, "The folder or file cannot be created"},
    {87, "Invalid parameter"},
    {110, "The file or device cannot be opened"},
    {111, "The file name is too long"},
    {112, "Not enough space on the disk"},
    {120, "The function is not supported here"},
    {122, "The buffer is too small"},
    {123, "Invalid name of a file, folder or volume"},
    {126, "Module not found"},
    {127, "Procedure not found"},
    {145, "The folder is not empty"},
    {161, "Invalid path"},
    {170, "The resource is in use"},
    {183, "The file exists already"},
    {193, "Not a valid module file"},
    {206, "The file name or its ending is too long"},
    {223, "The file is too large"},
    {234, "More data is available"},
    {267, "Invalid folder name"},
    {487, "Invalid address"},
    {998, "Invalid access to memory"},
    {1006, "The volume of the open file has changed"},
    {1112, "No medium in the drive"},
    {1114, "A module failed to start up"},
    {1117, "Input or output failed on the device"},
    {1157, "A module that is needed was not found"},
    {1223, "Cancelled by the user"},
    {1400, "Invalid window handle"},
    {1450, "Not enough system resources"},
    {1812, "The module has no resources"},
    {1813, "Resource type not found"},
    {1814, "Resource name not found"},
};
static_assert(std::ranges::is_sorted(kTexts, {}, &CodeText::code));

struct ErrnoCode {
    int error;
    uint32_t code;
};

constexpr ErrnoCode kErrnoCodes[] = {
    {0, 0},       {EACCES, 5},         {EPERM, 5},    {EROFS, 19},   {EISDIR, 5},
    {ENOENT, 2},  {ENOTDIR, 3},        {ELOOP, 3},    {EMFILE, 4},   {ENFILE, 4},
    {EBADF, 6},   {ENOMEM, 8},         {EBUSY, 32},   {ETXTBSY, 32}, {EEXIST, 183},
    {EINVAL, 87}, {ENAMETOOLONG, 206}, {ENOSPC, 112}, {EDQUOT, 112}, {EFBIG, 223},
    {EIO, 1117},  {ENODEV, 15},        {ENXIO, 15},   {ENOTSUP, 50}, {EFAULT, 998},
};

constexpr uint32_t kGeneralFailure = 31;

}  // namespace

String SystemCodeText(uint32_t code) {
    const auto* found = std::ranges::lower_bound(kTexts, code, {}, &CodeText::code);
    return found != std::end(kTexts) && found->code == code ? found->text : "";
}

uint32_t SystemCodeFromErrno(int error) {
    const auto* found = std::ranges::find(kErrnoCodes, error, &ErrnoCode::error);
    return found != std::end(kErrnoCodes) ? found->code : kGeneralFailure;
}

}  // namespace vxgui::core7

namespace vxgui::kernel {

String FormatMessageA(DWORD code) { return core7::SystemCodeText(code); }

}  // namespace vxgui::kernel
