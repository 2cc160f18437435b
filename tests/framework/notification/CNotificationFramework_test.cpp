#include "framework/notification/CNotificationFramework.h"

#include <gtest/gtest.h>

#include <boost/make_shared.hpp>

#include <stdexcept>
#include <string>
#include <vector>

using XimoGis::CNotificationFramework;
using XimoGis::IFrameworkEventResponder;

namespace {

// Writes its name into a shared journal for system deletions; a negative answer throws.
class JournalResponder : public IFrameworkEventResponder {
public:
    JournalResponder(std::vector<std::string>& journal, std::string name, int answer)
        : m_journal(journal), m_name(std::move(name)), m_answer(answer) {}
    int OnBeforeDeleteSystem(CGisSystem*) override { return Answer(m_name); }
    int OnAfterDeleteSystem() override { return Answer(m_name + " after"); }

private:
    int Answer(const std::string& line) {
        m_journal.push_back(line);
        if (m_answer < 0) throw std::runtime_error("responder failure");
        return m_answer;
    }
    std::vector<std::string>& m_journal;
    std::string m_name;
    int m_answer;
};

const CNotificationFramework::Event kBefore = [](IFrameworkEventResponder& r) {
    return r.OnBeforeDeleteSystem(nullptr);
};
const CNotificationFramework::Event kAfter = [](IFrameworkEventResponder& r) { return r.OnAfterDeleteSystem(); };

}  // namespace

TEST(CNotificationFramework, AsksInOrderUntilARefusalAndTellsEveryone) {
    auto* hub = CNotificationFramework::Instance();
    std::vector<std::string> journal;
    std::vector<boost::shared_ptr<IFrameworkEventResponder>> responders = {
        boost::make_shared<JournalResponder>(journal, "first", 1),
        boost::make_shared<JournalResponder>(journal, "thrower", -1),
        boost::make_shared<JournalResponder>(journal, "third", 1)};
    for (const auto& r : responders) ASSERT_TRUE(hub->RegisterEventResponder(r));

    EXPECT_FALSE(hub->AskResponders(kBefore));
    EXPECT_EQ(journal, (std::vector<std::string>{"first", "thrower"}));
    journal.clear();
    hub->NotifyResponders(kAfter);
    EXPECT_EQ(journal, (std::vector<std::string>{"first after", "thrower after", "third after"}));

    EXPECT_TRUE(hub->UnregisterEventResponder(responders[1].get()));
    journal.clear();
    EXPECT_TRUE(hub->AskResponders(kBefore));
    EXPECT_EQ(journal, (std::vector<std::string>{"first", "third"}));
    for (const auto& r : responders) hub->UnregisterEventResponder(r.get());
}

TEST(CNotificationFramework, RegistrationIgnoresNullAndDuplicates) {
    auto* hub = CNotificationFramework::Instance();
    const std::size_t before = hub->GetResponderCount();
    auto responder = boost::make_shared<IFrameworkEventResponder>();
    EXPECT_FALSE(hub->RegisterEventResponder(nullptr));
    EXPECT_TRUE(hub->RegisterEventResponder(responder));
    EXPECT_FALSE(hub->RegisterEventResponder(responder));
    EXPECT_EQ(hub->GetResponderCount(), before + 1);
    EXPECT_TRUE(hub->AskResponders(kBefore));  // the default answer lets the framework go on
    EXPECT_TRUE(hub->UnregisterEventResponder(responder.get()));
    EXPECT_FALSE(hub->UnregisterEventResponder(responder.get()));
}

TEST(CNotificationFramework, ResponderMayUnregisterItselfWhileCalled) {
    struct Leaver : IFrameworkEventResponder {
        int calls = 0;
        int OnAfterDeleteSystem() override {
            ++calls;
            return CNotificationFramework::Instance()->UnregisterEventResponder(this);
        }
    };
    auto leaver = boost::make_shared<Leaver>();
    ASSERT_TRUE(CNotificationFramework::Instance()->RegisterEventResponder(leaver));
    CNotificationFramework::Instance()->NotifyResponders(kAfter);
    CNotificationFramework::Instance()->NotifyResponders(kAfter);
    EXPECT_EQ(leaver->calls, 1);
}
