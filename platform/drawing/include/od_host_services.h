// What the application lends to the runtime, and where everyone asks for the drawing being worked on.
#pragma once

#include "od_db_types.h"
#include "od_string.h"

class OdDbDatabase;

/// The application's services. The application derives from it or uses it as it is, and installs one object.
class ODRT_API OdDbHostAppServices {
public:
    OdDbHostAppServices() = default;
    OdDbHostAppServices(const OdDbHostAppServices&) = delete;
    OdDbHostAppServices& operator=(const OdDbHostAppServices&) = delete;
    virtual ~OdDbHostAppServices();

    /// The drawing being worked on; null for none. Not owned.
    virtual OdDbDatabase* workingDatabase() const { return m_workingDatabase; }
    virtual void setWorkingDatabase(OdDbDatabase* database) { m_workingDatabase = database; }
    /// The product's registry key below the user's root, without a leading or trailing backslash.
    virtual OdString registryProductRootKey() const;
    /// The measurement system of new drawings: 0 imperial, 1 metric.
    virtual short measurementInit() const { return m_measurementInit; }
    virtual void setMeasurementInit(short value) { m_measurementInit = value; }
    /// Whether lineweights are shown in millimetres (true) or inches.
    virtual bool lineWeightsInMillimetres() const { return m_millimetres; }
    virtual void setLineWeightsInMillimetres(bool millimetres) { m_millimetres = millimetres; }
    /// The lineweight that OdDb::kLnWtByLwDefault stands for.
    virtual OdDb::LineWeight defaultLineWeight() const { return m_defaultLineWeight; }
    virtual void setDefaultLineWeight(OdDb::LineWeight weight) { m_defaultLineWeight = weight; }

private:
    OdDbDatabase* m_workingDatabase = nullptr;
    OdDb::LineWeight m_defaultLineWeight = OdDb::kLnWt025;
    short m_measurementInit = 1;
    bool m_millimetres = true;
};

/// The installed services; null until there are some.
ODRT_API OdDbHostAppServices* oddbHostApplicationServices();

/// Installs `services`, which stay the caller's; null takes them away.
ODRT_API void oddbSetHostApplicationServices(OdDbHostAppServices* services);
