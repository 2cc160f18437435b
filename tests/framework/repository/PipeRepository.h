#pragma once
// A repository of its own kind for the tests, built the way modules build theirs: items with a
// field of their own and a reader for their own element.

#include "framework/repository/CDefinitionRepository.h"
#include "framework/repository/CRepositoryFactory.h"
#include "host/base/AcString.h"

#include <pugixml.hpp>

#include <memory>
#include <ostream>

namespace XimoGis::Testing {

class PipeItem : public CRepositoryItem {
public:
    double diameter = 0.0;

    using CRepositoryItem::GetXML;
    void GetXML(std::wostream& out) const override {
        out << L"<pipe id=\"" << EncodeAttribute(GetId()) << L"\" name=\"" << EncodeAttribute(GetName())
            << L"\" topologyType=\"" << GetTopologyType() << L"\" readOnly=\"" << GetReadOnly() << L"\" diameter=\""
            << diameter << L"\"/>";
    }
};

class PipeRepository : public CDefinitionRepository {
public:
    static inline int deleteAnswer = 1;
    static inline int systemDeletes = 0;

    PipeRepository() {
        SetRepositoryKey(L"PIPES");
        SetRootElementName(L"pipes");
        SetBaseFlag(1);
    }
    int ReadXML(const wchar_t* xml) override {
        ClearRepository();
        pugi::xml_document document;
        if (!xml || !document.load_string(acutWcharToUtf8(xml).c_str())) return 0;
        const pugi::xml_node root = document.child("pipes");
        if (!root) return 0;
        SetExploded(root.attribute("exploded").as_int() == 1);
        for (const pugi::xml_node& element : root.children("pipe")) {
            auto item = std::make_unique<PipeItem>();
            item->SetId(acutUtf8ToWchar(element.attribute("id").as_string()));
            item->SetName(acutUtf8ToWchar(element.attribute("name").as_string()));
            item->SetTopologyType(element.attribute("topologyType").as_int());
            item->SetReadOnly(element.attribute("readOnly").as_int());
            item->diameter = element.attribute("diameter").as_double();
            AddRepositoryItem(item.release(), 1);
        }
        return 1;
    }
    int OnSystemDelete(System::CGisSystem*) override {
        ++systemDeletes;
        return deleteAnswer;
    }
};

class PipeRepositoryFactory : public CRepositoryFactory {
public:
    int made = 0;
    int freed = 0;

    CDefinitionRepository* GetRepository(const wchar_t*) override {
        ++made;
        return new PipeRepository();
    }
    void FreeRepositoryMemory(CDefinitionRepository* repository) override {
        ++freed;
        CRepositoryFactory::FreeRepositoryMemory(repository);
    }
    std::wstring GetRepositoryName() override { return L"Pipes"; }
};

}  // namespace XimoGis::Testing
