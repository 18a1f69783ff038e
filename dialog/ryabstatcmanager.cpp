// SPDX-License-Identifier: MIT

#include "ryabstatcmanager.h"

RyAbstatcManager::RyAbstatcManager() = default;

RyAbstatcManager::~RyAbstatcManager() = default;
