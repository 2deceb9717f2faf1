#include "vxgui/frame/Report.h"

#include <cstdio>

#include "vxgui/frame/Apartment.h"
#include "vxgui/frame/ErrorBox.h"
#include "vxgui/frame/Services.h"

namespace vxgui {

namespace {

constexpr const char* kLineBreak = "\r\n";

/// The number in decimal and, as its 32 bits, in hexadecimal: "5 0x5".
String NumberText(int64_t number) {
    char hex[16];
    std::snprintf(hex, sizeof hex, " 0x%X", static_cast<uint32_t>(number));
    return String::FromInt(number) + hex;
}

core7::SystemInformation& SystemInformation() {
    if (!gSysInfo) gSysInfo = gServices.createSystemInformation();
    return *gSysInfo;
}

String SystemText() {
    const DWORD code = kernel::GetLastError();
    if (code == 0) return {};
    return String(kLineBreak) + "系统错误代码:" + NumberText(code) + kLineBreak +
           "系统错误描述:" + SystemInformation().ErrorText(code);
}

String FailureText(const Failure& failure) {
    String text;
    if (failure.line != 0) text += "错误行号:" + String::FromInt(failure.line) + kLineBreak;
    if (failure.number != 0) {
        text += "错误代码:" + NumberText(failure.number) + kLineBreak +
                "错误描述:" + failure.description;
    }
    return text;
}

}  // namespace

void ReportUnexpectedError(const String& moduleName, const String& procedureName,
                           const Failure& failure) {
    // The platform's record is read first: what follows may overwrite it.
    const String system = SystemText();
    const String head = "在过程 " + moduleName + "::" + procedureName +
                        " 发生意外的错误: " + kLineBreak + FailureText(failure);
    ShowErrorBox(head + system);
}

}  // namespace vxgui
