#pragma once
// Walks the documents that were open when the iterator was made, in the order they were opened.
// Made by acDocManager->newAcApDocumentIterator(); the caller deletes it.

#include <cstddef>
#include <vector>

class AcApDocument;

class AcApDocumentIterator {
public:
    bool done() const { return m_index >= m_documents.size(); }
    void step() { ++m_index; }
    AcApDocument* document() const { return done() ? nullptr : m_documents[m_index]; }

private:
    friend class AcApDocManager;
    explicit AcApDocumentIterator(std::vector<AcApDocument*> documents) : m_documents(std::move(documents)) {}

    std::vector<AcApDocument*> m_documents;
    std::size_t m_index = 0;
};
