// What every screen is handed: the screens, the surroundings, the tables and the settings, all of which outlive it.
#pragma once

#include <string>

#include "platform/Desktop.h"
#include "platform/Platform.h"
#include "store/RecordStore.h"
#include "store/Settings.h"

namespace kontorwerk {

struct Context {
  Desktop& desktop;
  Platform& platform;
  const FileSystemObject& files;
  RecordStore& store;
  Settings& settings;
};

}  // namespace kontorwerk
