#include <ktui/nav/nav_dialog_imp.h>

#include <shlobj.h>
#include <shlwapi.h>

#include <vector>

#include <kh_system.h>
#include <od_string.h>

#include <ktui/host/loaded_module.h>
#include <ktui/host/resource_scope.h>
#include <ktui/nav/file_dialog_start.h>
#include <ktui/nav/filter_string.h>
#include <ktui/nav/ktui_nav_dialog.h>
#include <ktui/nav/nav_file_dlg.h>
#include <ktui/nav/never_blocked.h>
#include <ktui/nav/patient_places.h>
#include <ktui/nav/type_change.h>
#include <ktui/nav/underlay_export_dlg.h>

static_assert(kFileOverwritePrompt == OFN_OVERWRITEPROMPT && kFileNoChangeDir == OFN_NOCHANGEDIR &&
              kFileAllowMultiSelect == OFN_ALLOWMULTISELECT &&
              kFileExtensionDifferent == OFN_EXTENSIONDIFFERENT && kFilePathMustExist == OFN_PATHMUSTEXIST &&
              kFileMustExist == OFN_FILEMUSTEXIST && kFileDontAddToRecent == OFN_DONTADDTORECENT &&
              kPathRoom == MAX_PATH);

namespace {

constexpr const wchar_t* kInitialFilterIndex = L"InitialFilterIndex";
constexpr const wchar_t* kInitialDirectory = L"InitialDirectory";
constexpr DWORD kSeveralFilesRoom = 8192;  // characters

/// The folder where the host's templates lie; false if it has none.
bool templatePath(CString& path) {
    OdString found;
    if (!CKhSystem::instance()->profileStore()->getProfileString(L"General", L"TemplatePath", found, 0))
        return false;
    path = found.c_str();
    return true;
}

bool personalFolder(CString& folder) {
    wchar_t path[kPathRoom] = {};
    if (FAILED(::SHGetFolderPathW(nullptr, CSIDL_PERSONAL, nullptr, SHGFP_TYPE_CURRENT, path))) return false;
    folder = path;
    return true;
}

bool workingFolder(CString& folder) {
    wchar_t path[kPathRoom] = {};
    const DWORD length = ::GetCurrentDirectoryW(kPathRoom, path);
    folder = path;
    return length > 0 && length < kPathRoom;
}

}  // namespace

/// Texts that the platform's dialog points at while it runs. Afterwards it points at none of them.
class StartTexts {
public:
    explicit StartTexts(OPENFILENAMEW& ofn) : m_ofn(ofn) {}
    ~StartTexts() {
        m_ofn.lpstrTitle = m_ofn.lpstrDefExt = m_ofn.lpstrInitialDir = nullptr;
        if (m_files.empty()) return;
        m_ofn.lpstrFile = nullptr;
        m_ofn.nMaxFile = 0;
    }
    StartTexts(const StartTexts&) = delete;
    StartTexts& operator=(const StartTexts&) = delete;

    void SetExtension(const CString& extension) {
        m_extension = extension;
        m_ofn.lpstrDefExt = m_extension;
    }
    void SetFolder(const StartFolder& folder) {
        m_folder = folder;
        m_ofn.lpstrInitialDir = m_folder.shown;
    }
    const StartFolder& Folder() const { return m_folder; }
    /// Makes room for several files, beginning with the name that is there.
    void MakeRoomForSeveral() {
        m_files.resize(kSeveralFilesRoom);
        ::lstrcpynW(m_files.data(), m_ofn.lpstrFile, static_cast<int>(kSeveralFilesRoom));
        m_ofn.lpstrFile = m_files.data();
        m_ofn.nMaxFile = kSeveralFilesRoom;
    }

private:
    OPENFILENAMEW& m_ofn;
    CString m_extension;
    StartFolder m_folder;
    std::vector<wchar_t> m_files;
};

CNavDialogImp::CNavDialogImp(CNavDialog& owner, CNavDataArray& data, CNavFilterArray& filters)
    : m_owner(&owner), m_dataArray(&data), m_filterArray(&filters) {}

CNavDialogImp::~CNavDialogImp() = default;

INT_PTR CNavDialogImp::DoModal() {
    m_fileDialog.reset();
    const unsigned long flags = platformFlags();
    const CString filters = m_foldersOnly ? CString() : BuildFilterString(*m_filterArray);
    const ResourceScope scope(LoadedToolkit().resourceLibrary);
    makeFileDialog(flags, filters);
    const INT_PTR result = runFileDialog();
    if (result == IDOK) keepForNextRun();
    return result;
}

unsigned long CNavDialogImp::platformFlags() const {
    FileDialogSettings settings;
    settings.acceptsAnyExtension = m_acceptAnyFileExtension != 0;
    settings.confirmsReplace = m_confirmReplace != 0;
    settings.createsFile = m_creatingFile != 0;
    settings.allowsMultiSelect = m_multiSelectAllowed != 0;
    settings.opensWithoutTemplate = m_openWithoutTemplate != 0;
    return PlatformFlags(settings);
}

void CNavDialogImp::makeFileDialog(unsigned long flags, const CString& filters) {
    const CString name = StartName(m_initialFileName);
    const auto orNull = [](const CString& text) { return text.IsEmpty() ? nullptr : text.GetString(); };
    const int open = m_creatingFile == 0;
    if (m_underlayExport)
        m_fileDialog =
            std::make_unique<CNavUnderlayExportFileDlg>(this, open, orNull(name), flags, orNull(filters));
    else
        m_fileDialog = std::make_unique<CNavFileDlg>(this, open, orNull(name), flags, orNull(filters));
}

INT_PTR CNavDialogImp::runFileDialog() {
    OPENFILENAMEW& ofn = m_fileDialog->GetOFN();
    StartTexts texts(ofn);
    if (!m_dialogCaption.IsEmpty()) ofn.lpstrTitle = m_dialogCaption;
    if (!m_defaultFileExtension.IsEmpty())
        texts.SetExtension(NormalizeDefaultExtension(m_defaultFileExtension));
    settleDialogName();
    ofn.nFilterIndex = startFilterIndex();
    if (ofn.Flags & OFN_ALLOWMULTISELECT) texts.MakeRoomForSeveral();
    setStartFolder(texts);
    setStartName(texts);
    if (ofn.lpstrDefExt == nullptr && !m_foldersOnly)
        if (const auto extension = ExtensionOfFirstFilter(*m_filterArray)) texts.SetExtension(*extension);
    return m_fileDialog->DoModal();
}

void CNavDialogImp::settleDialogName() const {
    CString name;
    if (m_owner->GetDialogName(name)) return;
    wchar_t module[kPathRoom] = {};
    ::GetModuleFileNameW(AfxGetResourceHandle(), module, kPathRoom);
    m_owner->SetDialogName(NameByModule(module, m_fileDialog->TemplateId()));
}

unsigned long CNavDialogImp::startFilterIndex() const {
    FilterChoice choice;
    choice.forced = m_forceFilterIndex;
    unsigned long stored = 0;
    if (m_owner->GetDialogData(kInitialFilterIndex, stored)) choice.stored = stored;
    choice.given = m_defaultFilterIndex;
    choice.present = m_fileDialog->GetOFN().nFilterIndex;
    choice.count = m_filterArray->GetCount();
    return StartFilterIndex(choice);
}

void CNavDialogImp::setStartFolder(StartTexts& texts) const {
    const auto stored = [this](CString& folder) {
        return m_owner->GetDialogData(kInitialDirectory, folder) != 0;
    };
    texts.SetFolder(
        FirstFolder({m_forceInitialFolder, m_defaultInitialFolder, stored, personalFolder, workingFolder}));
    CString templates;
    if (m_applicationMode && !m_foldersOnly && IsTemplateFilter(CurrentFilter()) && templatePath(templates))
        texts.SetFolder(TemplateFolder(templates));
    const unsigned limit = KtUiNeverBlockedLimit();
    if (limit != 0 && !FolderAnswers(texts.Folder().shown, limit)) texts.SetFolder({});
}

void CNavDialogImp::setStartName(const StartTexts& texts) const {
    wchar_t* const file = m_fileDialog->GetOFN().lpstrFile;
    const auto name = NameInFolder(texts.Folder(), file);
    if (!name) return;
    // Kept: with a forced or a default folder, the bare name.
    ::lstrcpynW(file, texts.Folder().kept, kPathRoom);
    ::PathAppendW(file, *name);
}

void CNavDialogImp::keepForNextRun() const {
    if (!m_owner->IsKindOf(RUNTIME_CLASS(CKtUiNavDialog))) return;
    CString folder = m_dataArray->GetAt(0)->GetText();
    if (!m_foldersOnly) folder = folder.Left(folder.ReverseFind(L'\\') + 1);
    m_owner->SetDialogData(kInitialDirectory, folder);
    m_owner->SetDialogData(kInitialFilterIndex, m_fileDialog->GetOFN().nFilterIndex - 1);
}

CNavFilter* CNavDialogImp::CurrentFilter() const {
    if (!m_fileDialog) return nullptr;
    return m_filterArray->GetData(static_cast<int>(m_fileDialog->GetOFN().nFilterIndex) - 1);
}

void CNavDialogImp::ReactToTypeChange() {
    if (m_applicationMode) {
        enterTemplateFolder();
        if (m_creatingFile) retypeName();
    }
    m_owner->OnFilterChange();
}

void CNavDialogImp::enterTemplateFolder() const {
    CString path;
    if (!IsTemplateFilter(CurrentFilter()) || !templatePath(path)) return;
    if (const auto folder = FolderToEnter(path)) m_fileDialog->NavigateTo(*folder);
}

void CNavDialogImp::retypeName() const {
    const auto pattern = PatternForSaving(CurrentFilter());
    if (!pattern) return;
    if (const auto name = NameForPattern(m_fileDialog->TypedName(), *pattern)) m_fileDialog->TypeName(*name);
}
