#include "vxgui/platform/qt6/FileFilters.h"

namespace vxgui::qt6 {
namespace {

// Skins come from systems where the case of an ending does not matter.
QString AnyCase(const QString& pattern) {
    QString result;
    for (const QChar letter : pattern) {
        result += letter.isLetter() ? QString("[%1%2]").arg(letter.toLower()).arg(letter.toUpper())
                                    : QString(letter);
    }
    return result;
}

}  // namespace

QStringList FileFilters(const QString& filter) {
    QStringList result;
    for (const QString& entry : filter.split('|', Qt::SkipEmptyParts)) {
        QStringList patterns;
        for (const QString& pattern : entry.section(':', 1).split(';', Qt::SkipEmptyParts)) {
            patterns << (pattern == "*.*" ? QString("*") : AnyCase(pattern));
        }
        result << QString("%1 (%2)").arg(entry.section(':', 0, 0), patterns.join(' '));
    }
    return result;
}

}  // namespace vxgui::qt6
