#pragma once

#include <QStringList>

namespace vxgui::qt6 {

/// "name:*.a;*.b|name:*.c" as the file dialog's filters, "name (*.a *.b)", one each.
QStringList FileFilters(const QString& filter);

}  // namespace vxgui::qt6
