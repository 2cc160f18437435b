#pragma once
// Entry and exit trace of the module's operations: "Entering function " and "Exiting function "
// through the framework's function logger at the module's trace level, written only when logging
// is on and the process threshold admits the level.
//
//   AS_FUNCTION_TRACE(L"AssemblySchemes_Manager", L"XimoGis::AssemblySchemes::CASManager::Raise_...");

#include "framework/logging/CFunctionLogger.h"

namespace XimoGis::AssemblySchemes {

inline constexpr int kASTraceLevel = 3;

}  // namespace XimoGis::AssemblySchemes

#define AS_FUNCTION_TRACE(sourceFile, function) \
    XIMO_FUNCTION_LOG((sourceFile), (function), ::XimoGis::AssemblySchemes::kASTraceLevel)
