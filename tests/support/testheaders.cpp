// SPDX-License-Identifier: MIT

// Nothing: CMake keeps precompiled headers with a target that has a source.
