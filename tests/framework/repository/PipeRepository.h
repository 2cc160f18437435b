#pragma once
// A repository of its own kind for the tests, built the way modules build theirs: items with a
// field of their own, written and read as their own element.

#include "framework/data/CXmlText.h"
#include "framework/repository/CDefinitionRepository.h"
#include "framework/repository/CRepositoryFactory.h"

#include <memory>
#include <ostream>

namespace XimoGis::Testing {

class PipeItem : public CRepositoryItem {
public:
    int diameter = 0;

    using CRepositoryItem::GetXML;
    void GetXML(std::wostream& out) const override {
        pugi::xml_document document;
        pugi::xml_node pipe = document.append_child("pipe");
        Data::CXmlText::SetAttribute(pipe, "id", GetId());
        Data::CXmlText::SetAttribute(pipe, "name", GetName());
        Data::CXmlText::SetAttribute(pipe, "diameter", long{diameter});
        out << Data::CXmlText::ToText(pipe);
    }
};

class PipeRepository : public CDefinitionRepository {
public:
    static inline int deleteAnswer = 1;
    static inline int systemDeletes = 0;

    PipeRepository() {
        SetRepositoryKey(L"PIPES");
        SetRootElementName(L"pipes");
    }
    int ReadXML(const wchar_t* xml) override {
        ClearRepository();
        pugi::xml_document document;
        if (!Data::CXmlText::Load(xml, document, nullptr) || !document.child("pipes")) return 0;
        SetExploded(document.child("pipes").attribute("exploded").as_int() == 1);
        for (const pugi::xml_node& element : document.child("pipes").children("pipe")) {
            auto item = std::make_unique<PipeItem>();
            item->SetId(Data::CXmlText::GetAttribute(element, "id"));
            item->SetName(Data::CXmlText::GetAttribute(element, "name"));
            item->diameter = element.attribute("diameter").as_int();
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
