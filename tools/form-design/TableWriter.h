// Writes the design table as one C++ source file.
#pragma once

#include <QByteArray>
#include <vector>

#include "platform/FormDesign.h"

namespace kontorwerk {

// The source of FormDesigns() over `screens`, texts as escaped Windows-1252.
[[nodiscard]] QByteArray DesignTableSource(const std::vector<ScreenDesign>& screens);

}  // namespace kontorwerk
