#pragma once
// General helpers of the framework.

#include <string>

namespace XimoGis::Utility {

class CUtility {
public:
    // A new random GUID as uppercase text in braces, e.g. "{0F8FAD5B-D9CB-469F-A165-70867728950E}":
    // the form the framework writes into entity attributes and logs.
    static std::wstring CreateGUID();
    static bool FileExists(const std::wstring& path);
};

}  // namespace XimoGis::Utility
