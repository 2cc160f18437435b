#pragma once
// The framework's notification hub: modules register event responders, framework services
// raise events through it. Responders are called in the order they were registered.

#include "framework/notification/IFrameworkEventResponder.h"

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <vector>

namespace XimoGis {

class CNotificationFramework {
public:
    using Event = boost::function<int(IFrameworkEventResponder&)>;

    static CNotificationFramework* Instance();

    // The framework keeps the responder alive while it is registered. Registering the same
    // responder twice, or a null one, does nothing and returns false.
    bool RegisterEventResponder(const boost::shared_ptr<IFrameworkEventResponder>& responder);
    bool UnregisterEventResponder(const IFrameworkEventResponder* responder);
    std::size_t GetResponderCount() const;

    // A "Before" event: asks each responder in turn and stops at the first that answers 0 (or
    // throws). True when every responder agreed.
    bool AskResponders(const Event& event);
    // Any other event: every responder is told; answers are not used.
    void NotifyResponders(const Event& event);

private:
    CNotificationFramework() = default;

    // A responder may register or unregister others, or itself, while it is being called, so
    // events go to a copy of this list.
    std::vector<boost::shared_ptr<IFrameworkEventResponder>> m_responders;
};

}  // namespace XimoGis
