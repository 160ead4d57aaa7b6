// CNavArray<T>: an array that makes and owns the elements it holds; under the results and the filters of a
// navigation dialog.
//
//     CNavDataArray chosen;
//     CNavData* data = chosen.AddData();   // the array's own
//     data->SetText(L"C:\\drawings\\plan.dwg");
//     chosen.RemoveData(0);                // destroys it
//
// The typed array's own operations stay at hand. They throw CInvalidArgException for an index out of range;
// those of this class never throw.
#pragma once

#include <afxcoll.h>
#include <afxtempl.h>

#include <new>

template <class T>
class CNavArray : public CTypedPtrArray<CObArray, T*> {
public:
    CNavArray() = default;
    ~CNavArray() override { RemoveAllData(); }

    /// Number of elements.
    int GetCount() const { return static_cast<int>(this->GetSize()); }
    /// Whether there is an element `index`.
    bool IsIndexValid(int index) const { return index >= 0 && index < GetCount(); }
    /// Element `index`, still the array's; null for an index out of range.
    T* GetData(int index) const { return IsIndexValid(index) ? this->GetAt(index) : nullptr; }
    /// Appends a new element of NewData and answers it, the array's own; null, with nothing added, if none
    /// could be made.
    T* AddData() {
        T* const data = NewData();
        if (data != nullptr) this->Add(data);
        return data;
    }
    /// Takes element `index` out and destroys it; nothing for an index out of range.
    void RemoveData(int index) {
        if (!IsIndexValid(index)) return;
        T* const data = this->GetAt(index);
        this->RemoveAt(index);
        delete data;
    }
    /// Destroys all elements and gives the array's memory back.
    void RemoveAllData() {
        for (int index = 0; index < GetCount(); ++index) delete this->GetAt(index);
        this->SetSize(0);
        this->FreeExtra();
    }

protected:
    /// A new element, or null.
    virtual T* NewData() { return new (std::nothrow) T; }
};
