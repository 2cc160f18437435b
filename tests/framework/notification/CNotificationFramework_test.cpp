#include "framework/notification/CNotificationFramework.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <stdexcept>
#include <string>
#include <vector>

using XimoGis::CNotificationFramework;
using XimoGis::IFrameworkEventResponder;

namespace {

// Writes its name into a shared journal when asked whether a system may go.
class JournalResponder : public IFrameworkEventResponder {
public:
    JournalResponder(std::vector<std::string>& journal, std::string name, int answer)
        : m_journal(journal), m_name(std::move(name)), m_answer(answer) {}
    int OnBeforeDeleteSystem(CGisSystem*) override {
        m_journal.push_back(m_name);
        if (m_answer < 0) throw std::runtime_error("responder failure");
        return m_answer;
    }
    int OnAfterDeleteSystem() override {
        m_journal.push_back(m_name + " after");
        if (m_answer < 0) throw std::runtime_error("responder failure");
        return m_answer;
    }

private:
    std::vector<std::string>& m_journal;
    std::string m_name;
    int m_answer;
};

// Registers responders for one test and removes them again from the process-wide hub.
class Registration {
public:
    ~Registration() {
        for (auto* r : m_registered) CNotificationFramework::Instance()->UnregisterEventResponder(r);
    }
    boost::shared_ptr<IFrameworkEventResponder> Add(boost::shared_ptr<IFrameworkEventResponder> responder) {
        if (CNotificationFramework::Instance()->RegisterEventResponder(responder)) m_registered.push_back(responder.get());
        return responder;
    }

private:
    std::vector<IFrameworkEventResponder*> m_registered;
};

const CNotificationFramework::Event kBeforeDelete = [](IFrameworkEventResponder& r) {
    return r.OnBeforeDeleteSystem(nullptr);
};
const CNotificationFramework::Event kAfterDelete = [](IFrameworkEventResponder& r) { return r.OnAfterDeleteSystem(); };

}  // namespace

TEST(CNotificationFramework, AsksInRegistrationOrderAndStopsAtTheFirstRefusal) {
    std::vector<std::string> journal;
    Registration registration;
    registration.Add(boost::make_shared<JournalResponder>(journal, "first", 1));
    registration.Add(boost::make_shared<JournalResponder>(journal, "second", 0));
    registration.Add(boost::make_shared<JournalResponder>(journal, "third", 1));

    EXPECT_FALSE(CNotificationFramework::Instance()->AskResponders(kBeforeDelete));
    EXPECT_EQ(journal, (std::vector<std::string>{"first", "second"}));

    journal.clear();
    CNotificationFramework::Instance()->NotifyResponders(kAfterDelete);
    EXPECT_EQ(journal, (std::vector<std::string>{"first after", "second after", "third after"}));
}

TEST(CNotificationFramework, ThrowingResponderRefusesButOthersStillHearAfterEvents) {
    std::vector<std::string> journal;
    Registration registration;
    registration.Add(boost::make_shared<JournalResponder>(journal, "thrower", -1));
    registration.Add(boost::make_shared<JournalResponder>(journal, "quiet", 1));

    EXPECT_FALSE(CNotificationFramework::Instance()->AskResponders(kBeforeDelete));
    journal.clear();
    CNotificationFramework::Instance()->NotifyResponders(kAfterDelete);
    EXPECT_EQ(journal, (std::vector<std::string>{"thrower after", "quiet after"}));
}

TEST(CNotificationFramework, RegistrationIgnoresNullAndDuplicates) {
    auto* hub = CNotificationFramework::Instance();
    const std::size_t before = hub->GetResponderCount();
    std::vector<std::string> journal;
    auto responder = boost::make_shared<JournalResponder>(journal, "one", 1);
    EXPECT_FALSE(hub->RegisterEventResponder(nullptr));
    EXPECT_TRUE(hub->RegisterEventResponder(responder));
    EXPECT_FALSE(hub->RegisterEventResponder(responder));
    EXPECT_EQ(hub->GetResponderCount(), before + 1);
    EXPECT_TRUE(hub->AskResponders(kBeforeDelete));
    EXPECT_EQ(journal.size(), 1u);
    EXPECT_TRUE(hub->UnregisterEventResponder(responder.get()));
    EXPECT_FALSE(hub->UnregisterEventResponder(responder.get()));
    EXPECT_EQ(hub->GetResponderCount(), before);
}

TEST(CNotificationFramework, ResponderMayUnregisterItselfWhileCalled) {
    class Leaver : public IFrameworkEventResponder {
    public:
        int calls = 0;
        int OnAfterDeleteSystem() override {
            ++calls;
            CNotificationFramework::Instance()->UnregisterEventResponder(this);
            return 1;
        }
    };
    auto leaver = boost::make_shared<Leaver>();
    ASSERT_TRUE(CNotificationFramework::Instance()->RegisterEventResponder(leaver));
    CNotificationFramework::Instance()->NotifyResponders(kAfterDelete);
    CNotificationFramework::Instance()->NotifyResponders(kAfterDelete);
    EXPECT_EQ(leaver->calls, 1);
}

TEST(IFrameworkEventResponder, EveryDefaultLetsTheFrameworkGoOn) {
    IFrameworkEventResponder r;
    const std::vector<std::wstring> guids{L"{A}"};
    const int sum = r.OnAfterWorkspaceOpened(L"") + r.OnBeforeWorkspaceClosed(L"") + r.OnAfterCreateSystem(nullptr) +
                    r.OnBeforeDeleteSystem(nullptr) + r.OnAfterDeleteSystem() +
                    r.OnBeforeSystemEntitiesDeleted(nullptr) + r.OnAfterSystemEntitiesDeleted(nullptr) +
                    r.OnActiveSystemChanged(nullptr) + r.OnAfterSystemLayersRecreated(nullptr) +
                    r.OnAfterRepositoryLoaded(nullptr, L"AS") + r.OnAfterRepositorySaved(nullptr, L"AS") +
                    r.OnAfterDrawingOpened(L"") + r.OnBeforeDrawingClosed(L"") + r.OnAfterDrawingSaved(L"") +
                    r.OnAfterNodeCreated(nullptr, L"") + r.OnAfterNodeModified(nullptr, L"") +
                    r.OnBeforeNodeDeleted(nullptr, L"") + r.OnAfterSectionCreated(nullptr, L"") +
                    r.OnAfterSectionModified(nullptr, L"") + r.OnBeforeSectionDeleted(nullptr, L"") +
                    r.OnBeforeEntitiesDeleted(nullptr, guids) + r.OnAfterEntitiesDeleted(nullptr) +
                    r.OnAfterCatalogChanged(L"") + r.OnAfterTransactionCommitted() + r.OnAfterTransactionRolledBack();
    EXPECT_EQ(sum, 25);
}
