// DocumentHolder: what shows the document windows of a frame, which tell it what happens to them.
#pragma once

class CMDIChildWndEx;

namespace kmfc::docking {

class DocumentHolder {
public:
    virtual ~DocumentHolder() = default;

    virtual void add(CMDIChildWndEx& child) = 0;
    virtual void remove(CMDIChildWndEx& child) = 0;
    virtual void rename(CMDIChildWndEx& child) = 0;
    virtual void activate(CMDIChildWndEx& child) = 0;
    /// It is about to be destroyed: another one becomes the active document.
    virtual void make_way(CMDIChildWndEx& child) = 0;
    /// Whether documents have all the room, as maximised windows; otherwise the holder places them.
    virtual bool maximizes() const = 0;
};

}  // namespace kmfc::docking
