#pragma once
#include "platform/presentation/KTManualPage.h"

namespace CLI {
class App;
}

/// The manual page of the command line @p app, made of what its help says.
KTManualPage manualOfCommandLine(const CLI::App& app);
