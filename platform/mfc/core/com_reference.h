// A counted reference to a COM object.
#pragma once

#include <memory>

#include <windows.h>

#include <unknwn.h>

namespace kmfc {

struct ReleaseInterface {
    void operator()(IUnknown* served) const { served->Release(); }
};

template <class T>
using Reference = std::unique_ptr<T, ReleaseInterface>;

/// Hands the result of a function that fills a pointer to a reference, and answers what the function did.
template <class T, class Function>
HRESULT fill(Reference<T>& place, Function function) {
    T* made = nullptr;
    const HRESULT result = function(&made);
    if (SUCCEEDED(result)) place.reset(made);
    return result;
}

}  // namespace kmfc
