// The default templates on their way into the data folder.
#pragma once

#include "platform/Context.h"

namespace kontorwerk {

// Writes each default template into the data folder where no file of that name is there; the user's own stay.
void ProvideTemplates(const FileSystemObject& files, const Settings& settings);

}  // namespace kontorwerk
