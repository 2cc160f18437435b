#pragma once
// Base of everything stored in a drawing database.
//
// Ownership: an object made with new belongs to the caller until it is added to a database
// (appendAcDbEntity, a symbol table's add); from then on the database owns it and the caller only
// closes it. Objects in a database are reached by opening their id (acdbOpenObject) and given back
// with close(): many readers or one writer at a time.

#include <string>

#include "host/base/AcadTypes.h"
#include "host/base/resbuf.h"
#include "host/database/AcDbObjectId.h"
#include "host/database/AcDbXData.h"

class AcDbDatabase;

class AcDbObject {
public:
    virtual ~AcDbObject();

    // The class name as the host spells it ("AcDbLine").
    virtual const ACHAR* isA() const = 0;
    // A copy of the object's data and extended data, not in any database.
    virtual AcDbObject* clone() const = 0;

    AcDbObjectId objectId() const;
    AcDbObjectId ownerId() const;
    AcDbDatabase* database() const;
    bool isErased() const;
    bool isReadEnabled() const;
    bool isWriteEnabled() const;

    // Erasing needs the object open for write; erased objects stay in the database, skipped by
    // iterators, and can be unerased.
    Acad::ErrorStatus erase(bool erasing = true);
    Acad::ErrorStatus close();
    Acad::ErrorStatus upgradeOpen();
    Acad::ErrorStatus downgradeOpen();

    // Extended data as a result-buffer list owned by the caller (free with acutRelRb): the named
    // application's, or every application's when the name is null. Null when there is none.
    resbuf* xData(const ACHAR* regappName = nullptr) const;
    // Replaces the data of each application named in the list by a 1001 item; an application with
    // no values after its name is removed. In a database the application must be registered.
    Acad::ErrorStatus setXData(const resbuf* xdata);

    // The same data for C++ callers.
    const AcDbXDataList& xDataList() const { return m_xdata; }
    const AcDbXDataApp* xDataFor(const std::wstring& application) const;
    Acad::ErrorStatus setXData(const AcDbXDataApp& data) { return setXData(AcDbXDataApp(data)); }
    // Takes the data over (reading files sets much extended data).
    Acad::ErrorStatus setXData(AcDbXDataApp&& data);

protected:
    AcDbObject() = default;
    AcDbObject(const AcDbObject& other) : m_xdata(other.m_xdata) {}
    AcDbObject& operator=(const AcDbObject&) = delete;

    // Hooks for objects that own others (a block reference's attributes).
    virtual void subErase(bool /*erasing*/) {}
    virtual void subAddedToDatabase(AcDbDatabase* /*db*/) {}

private:
    friend class AcDbDatabase;
    AcDbStub* m_stub = nullptr;
    AcDbXDataList m_xdata;
};
