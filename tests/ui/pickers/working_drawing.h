// A working drawing for the pickers, with a current layer whose colour a test changes.
#pragma once

#include <od_db_database.h>
#include <od_db_layer_table.h>
#include <od_host_services.h>

namespace ui_test {

class WorkingDrawing {
public:
    WorkingDrawing() : m_drawing(new OdDbDatabase), m_former(oddbHostApplicationServices()) {
        m_services.setWorkingDatabase(m_drawing.get());
        oddbSetHostApplicationServices(&m_services);
    }
    ~WorkingDrawing() { oddbSetHostApplicationServices(m_former); }
    WorkingDrawing(const WorkingDrawing&) = delete;
    WorkingDrawing& operator=(const WorkingDrawing&) = delete;

    OdDbDatabase* database() { return m_drawing.get(); }
    OdDbHostAppServices& services() { return m_services; }

    void setCurrentLayerColor(const OdCmColor& color) {
        m_drawing->clayer().open<OdDbLayerTableRecord>(OdDb::kForWrite)->setColor(color);
    }
    void setCurrentLayerColor(int index) {
        OdCmColor color;
        color.setColorIndex(index);
        setCurrentLayerColor(color);
    }

private:
    OdSmartPtr<OdDbDatabase> m_drawing;
    OdDbHostAppServices m_services;
    OdDbHostAppServices* m_former;
};

}  // namespace ui_test
