#pragma once
// The process's function log: one switch, a level threshold and a UTF-8 file that lines are
// appended to. Every line reads
//   "[<time>] <source file, padded to 32>(<line, 5 digits>): [<function, padded to 16>], <text>"
// (the format "[%s] %-32s(%5.5i): [%-16s], "), where the source file is named without extension,
// the function is the qualified function or operation name and <time> is the local time from
// Utility::CTimeStamp ("YYYY-MM-DD HH:MM:SS.mmm"). A line is written only when logging is on and
// its level is at or below the threshold; the level itself is not printed. Failures to write are
// never reported.
//
// The open workspace's <log> settings configure the engine (CModuleConfiguration).

#include <fstream>
#include <string>

namespace XimoGis::Logging {

class CLogEngine {
public:
    static CLogEngine* Instance();

    void Configure(bool loggingOn, int threshold, const std::wstring& file);
    bool IsLoggingOn() const { return m_loggingOn; }
    void SetLoggingOn(bool on) { m_loggingOn = on; }
    int GetThreshold() const { return m_threshold; }
    void SetThreshold(int threshold) { m_threshold = threshold; }
    const std::wstring& GetFile() const { return m_file; }
    void SetFile(const std::wstring& file);

    // True when a line of `level` would be written.
    bool IsEnabled(int level) const { return m_loggingOn && level <= m_threshold; }
    // Appends one line when IsEnabled(level); `text` may itself hold line breaks.
    void Write(const std::wstring& sourceFile, int line, const std::wstring& function, int level,
               const std::wstring& text);
    // Appends one line whatever the switch and threshold say, for callers that decided already.
    void Append(const std::wstring& sourceFile, int line, const std::wstring& function, const std::wstring& text);
    // The line as Write would write it, without the final line break.
    std::wstring FormatLine(const std::wstring& sourceFile, int line, const std::wstring& function,
                            const std::wstring& text) const;

    CLogEngine(const CLogEngine&) = delete;
    CLogEngine& operator=(const CLogEngine&) = delete;

private:
    CLogEngine() = default;

    bool m_loggingOn = false;
    int m_threshold = 3;
    std::wstring m_file;
    std::ofstream m_stream;
};

}  // namespace XimoGis::Logging
