// SPDX-License-Identifier: MIT

#include "registrychanges.h"

quint64 RegistryChanges::ofActions = 0;
quint64 RegistryChanges::ofToolBars = 0;
