#pragma once
// A named collection of repository items of one network system, kept as the system's
// sub-document named by the repository key (for "AS": <workspace>/systems/<id>/AS.xml):
//   <?xml version="1.0" encoding="UTF-8"?>
//   <ROOT version="1" exploded="0|1"> each item's GetXML </ROOT>
// where ROOT is the repository's root element name. A plain repository reads "repositoryItem"
// elements (see CRepositoryItem); derived repositories read their own items in ReadXML.
//
// A file that exists but cannot be read is never overwritten: Save refuses until a Load succeeds.

#include "framework/repository/CRepositoryItem.h"

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace XimoGis::System {
class CGisSystem;
}

namespace XimoGis {

class CDefinitionRepository {
public:
    CDefinitionRepository() = default;
    CDefinitionRepository(const CDefinitionRepository&) = delete;
    CDefinitionRepository& operator=(const CDefinitionRepository&) = delete;
    virtual ~CDefinitionRepository();

    // Empties the repository, then reads the document: non-zero when its root element is the
    // repository's root element name. Items that cannot be read are skipped.
    virtual int ReadXML(const wchar_t* xml);
    // Told before the repository's system is deleted; 0 keeps the system.
    virtual int OnSystemDelete(System::CGisSystem* system);

    const std::wstring& GetRepositoryKey() const { return m_key; }
    void SetRepositoryKey(const std::wstring& key) { m_key = key; }
    const std::wstring& GetRootElementName() const { return m_rootElementName; }
    void SetRootElementName(const std::wstring& name) { m_rootElementName = name; }
    // Base repositories come with every system of their kind; the browser does not offer to
    // remove them.
    int GetBaseFlag() const { return m_baseFlag; }
    void SetBaseFlag(int baseFlag) { m_baseFlag = baseFlag; }
    // Whether the browser shows the repository's items unfolded; kept in the file.
    int IsExploded() const { return m_exploded; }
    void SetExploded(int exploded) { m_exploded = exploded; }
    // The system whose sub-document holds the repository; not owned.
    System::CGisSystem* GetSystem() const { return m_system; }
    void SetSystem(System::CGisSystem* system) { m_system = system; }

    // Takes ownership of `item`. With `fromStorage` 0 (an item made by the user) an empty id is
    // replaced by a new GUID; items read from the file are kept as they are, duplicates too
    // (look-ups find the first). False for null or an item already held.
    bool AddRepositoryItem(CRepositoryItem* item, int fromStorage);
    // Destroys the item; false when the repository does not hold it.
    bool RemoveRepositoryItem(CRepositoryItem* item);
    void ClearRepository();
    CRepositoryItem* GetRepositoryItemById(const wchar_t* id) const;
    CRepositoryItem* GetRepositoryItemByName(const wchar_t* name) const;
    std::vector<CRepositoryItem*> GetRepositoryItems() const;
    std::size_t GetItemCount() const { return m_items.size(); }
    // "<base> <n>" with the smallest n from 1 that no item is named yet, e.g. "Scheme 3".
    std::wstring GetNextRepositoryItemName(const wchar_t* base) const;

    // The whole document as Save writes it.
    std::wstring GetXML() const;
    // Reads the system's sub-document. On failure the repository is empty, `error` names the
    // file and what is wrong, and the file is left as it is.
    bool Load(std::wstring& error);
    // Writes the document atomically.
    bool Save(std::wstring& error);
    // The error of the last Load or Save; empty after success.
    const std::wstring& GetLastError() const { return m_lastError; }

private:
    bool Fail(const std::wstring& message, std::wstring& error);
    std::wstring Describe() const;

    std::wstring m_key;
    std::wstring m_rootElementName;
    int m_baseFlag = 0;
    int m_exploded = 0;
    System::CGisSystem* m_system = nullptr;
    std::vector<std::unique_ptr<CRepositoryItem>> m_items;
    bool m_fileUnreadable = false;
    std::wstring m_lastError;
};

}  // namespace XimoGis
