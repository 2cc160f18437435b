#pragma once
// Traces one function call: "Entering function " when constructed, "Exiting function " when the
// scope ends, both through CLogEngine with this object's source file, line and function name.
// Whether to trace is decided once, at construction, so the two lines always come in pairs.
//
//   XIMO_FUNCTION_LOG(L"AssemblySchemes_Editor", L"XimoGis::AssemblySchemes::CASEditor::Draw", 3);

#include <string>

namespace XimoGis::Logging {

class CFunctionLogger {
public:
    CFunctionLogger(const wchar_t* sourceFile, int line, const wchar_t* function, int level);
    ~CFunctionLogger();

    CFunctionLogger(const CFunctionLogger&) = delete;
    CFunctionLogger& operator=(const CFunctionLogger&) = delete;

private:
    bool m_active = false;
    int m_line = 0;
    // Copied only when tracing, so that a disabled logger costs no allocation.
    std::wstring m_sourceFile;
    std::wstring m_function;
};

}  // namespace XimoGis::Logging

#define XIMO_FUNCTION_LOG(sourceFile, function, level) \
    ::XimoGis::Logging::CFunctionLogger ximoFunctionLogger_((sourceFile), __LINE__, (function), (level))
