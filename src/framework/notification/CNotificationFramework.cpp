#include "framework/notification/CNotificationFramework.h"

#include <algorithm>

namespace XimoGis {

CNotificationFramework* CNotificationFramework::Instance() {
    static CNotificationFramework instance;
    return &instance;
}

bool CNotificationFramework::RegisterEventResponder(const boost::shared_ptr<IFrameworkEventResponder>& responder) {
    if (!responder) return false;
    const auto found = std::find(m_responders.begin(), m_responders.end(), responder);
    if (found != m_responders.end()) return false;
    m_responders.push_back(responder);
    return true;
}

bool CNotificationFramework::UnregisterEventResponder(const IFrameworkEventResponder* responder) {
    const auto found = std::find_if(m_responders.begin(), m_responders.end(),
                                    [responder](const auto& registered) { return registered.get() == responder; });
    if (found == m_responders.end()) return false;
    m_responders.erase(found);
    return true;
}

std::size_t CNotificationFramework::GetResponderCount() const { return m_responders.size(); }

bool CNotificationFramework::AskResponders(const Event& event) {
    const auto responders = m_responders;
    for (const auto& responder : responders) {
        int answer = 0;
        try {
            answer = event(*responder);
        } catch (...) {
            // A responder that fails cannot be taken to agree.
            answer = 0;
        }
        if (answer == 0) return false;
    }
    return true;
}

void CNotificationFramework::NotifyResponders(const Event& event) {
    const auto responders = m_responders;
    for (const auto& responder : responders) {
        try {
            event(*responder);
        } catch (...) {
            // One failing responder must not keep the others from hearing of the event.
        }
    }
}

}  // namespace XimoGis
