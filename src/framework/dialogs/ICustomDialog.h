#pragma once
// A dialog that edits a property the property editor cannot edit itself (editor type "custom
// dialog"), registered under the property's custom control id.

#include "framework/data/CPropertiesEx.h"
#include "framework/data/CPropertyEx.h"

#include <string>

namespace XimoGis::Data {

class ICustomDialog {
public:
    virtual ~ICustomDialog() = default;

    // Writes the user's choice `answer` into `property` (and into other properties of `properties`,
    // which may be null, when one choice fills several). Returns whether a value was chosen; a
    // dialog that cannot use the answer returns false and changes nothing.
    virtual bool Run(CPropertyEx& property, CPropertiesEx* properties, const std::wstring& answer) = 0;
};

}  // namespace XimoGis::Data
