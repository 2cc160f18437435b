#pragma once
// Hears clicks on the grip buttons that float beside an element while it is placed. The id is
// the button's id string ("MIRROR", "ROTATE", "SEL_CONN", "SEL_CONN_SCHEME").

namespace XimoGis::AssemblySchemes {

class IGripButtonListener {
public:
    virtual ~IGripButtonListener() = default;
    virtual void OnButtonClicked(const wchar_t* /*id*/) {}
};

}  // namespace XimoGis::AssemblySchemes
