#pragma once

#include <QString>

// One picture that shows the drawn Resources at a glance: portraits in chance combinations of
// body, hair, face and kit, the organisations' logos, the icons, flags and the world map.
namespace ContactSheet {

bool make(const QString &resources, const QString &outFile, int seed);

} // namespace ContactSheet
