#pragma once
// Opening objects by id: many readers or one writer at a time; erased objects only on request.

#include "host/database/AcDbObject.h"

Acad::ErrorStatus acdbOpenObject(AcDbObject*& object, AcDbObjectId id, AcDb::OpenMode mode, bool openErased = false);

// Opens and checks the kind; a mismatch closes the object again and fails.
template <class T>
Acad::ErrorStatus acdbOpenObject(T*& object, AcDbObjectId id, AcDb::OpenMode mode, bool openErased = false) {
    object = nullptr;
    AcDbObject* base = nullptr;
    const Acad::ErrorStatus es = acdbOpenObject(base, id, mode, openErased);
    if (es != Acad::eOk) return es;
    object = dynamic_cast<T*>(base);
    if (!object) {
        base->close();
        return Acad::eNotThatKindOfClass;
    }
    return Acad::eOk;
}

// Keeps an object open for the lifetime of the pointer and closes it at the end.
template <class T>
class AcDbObjectPointer {
public:
    AcDbObjectPointer() = default;
    AcDbObjectPointer(AcDbObjectId id, AcDb::OpenMode mode, bool openErased = false) { open(id, mode, openErased); }
    ~AcDbObjectPointer() { close(); }
    AcDbObjectPointer(const AcDbObjectPointer&) = delete;
    AcDbObjectPointer& operator=(const AcDbObjectPointer&) = delete;

    Acad::ErrorStatus open(AcDbObjectId id, AcDb::OpenMode mode, bool openErased = false) {
        close();
        m_status = acdbOpenObject(m_object, id, mode, openErased);
        return m_status;
    }
    Acad::ErrorStatus close() {
        if (!m_object) return Acad::eOk;
        const Acad::ErrorStatus es = m_object->close();
        m_object = nullptr;
        return es;
    }
    Acad::ErrorStatus openStatus() const { return m_status; }
    T* object() const { return m_object; }
    T* operator->() const { return m_object; }
    explicit operator bool() const { return m_object != nullptr; }

private:
    T* m_object = nullptr;
    Acad::ErrorStatus m_status = Acad::eNullObjectId;
};
