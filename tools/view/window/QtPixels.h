#pragma once

#include <QImage>
#include <QLabel>
#include <QString>
#include <string>

#include "tools/vxgui/Sheet.h"
#include "vxgui/base/String.h"

namespace vxgui::view {

inline QString QtText(const String& text) {
    return QString::fromUtf16(text.data(), static_cast<qsizetype>(text.size()));
}
inline QString QtText(const std::string& text) { return QString::fromStdString(text); }

inline QImage ImageOf(tool::Sheet& sheet, QImage::Format format) {
    return {reinterpret_cast<const uchar*>(&sheet.At(0, 0)), sheet.width(), sheet.height(),
            qsizetype{sheet.width()} * 4, format};
}
/// The pixels of a sheet, as long as that lives; the alpha byte counts as opaque.
inline QImage OpaqueImageOf(tool::Sheet& sheet) { return ImageOf(sheet, QImage::Format_RGB32); }
/// The same of a sheet with straight alpha.
inline QImage StraightImageOf(tool::Sheet& sheet) { return ImageOf(sheet, QImage::Format_ARGB32); }

/// The name beside a value, which stands back behind it.
inline QLabel* NewNameLabel(const QString& text) {
    auto* const label = new QLabel(text);
    QPalette colours = label->palette();
    colours.setColor(QPalette::WindowText, QColor(0x60, 0x68, 0x74));
    label->setPalette(colours);
    return label;
}

}  // namespace vxgui::view
