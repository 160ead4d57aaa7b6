// Optional services of the application, found by name.
//
// A feature whose service is missing stays inert: nothing is reported.
#pragma once

/// What every named service derives from. A service belongs to the host, lives as long as the host says and
/// is never deleted through this class. The class adds no slot, so that a service's own first operation is
/// its first slot; a caller casts to the class that the name stands for.
class CKhService {
protected:
    ~CKhService() = default;
};

/// Finds the application's optional services.
class CKhServiceManager {
public:
    /// The service registered under `name`, or null if the application has none of that name. Not owned by
    /// the caller. Names asked for: kKhPlotStyleService, kKhPlotService, kKhSecurityService (each in the
    /// header of its interface).
    virtual CKhService* getService(const wchar_t* name) = 0;

protected:
    ~CKhServiceManager() = default;
};
