// CStandinHost: a complete host object for applications that have none of their own yet, for samples and
// tests.
//
//     CStandinHost host(theApp);          // installs itself; the destructor puts the former host back
//     host.SetCurrentDocument(&document);
//
// Settings go to the registry below ktutProfileFileName(); colours are the indexed palette for a dark
// background; dialogs are this module's own. A single facet can be replaced, as tests do.
#pragma once

#include <functional>
#include <memory>
#include <vector>

#include <afxwin.h>
#include <kh_system.h>
#include <od_db.h>

#include "standin_api.h"
#include "standin_settings.h"

class CKhFontStyle;
class StandinPlotView;
struct StandinFacets;

class STANDIN_API CStandinHost : public CKhSystem {
public:
    /// `application` is the host's application object; its main window may come later.
    explicit CStandinHost(CWinApp& application);
    virtual ~CStandinHost();
    CStandinHost(const CStandinHost&) = delete;
    CStandinHost& operator=(const CStandinHost&) = delete;

    CKhServiceManager* serviceManager() override;
    CKhRuntimeHost* runtimeHost() override;
    CKhProductInfo* productInfo() override;
    CKhProfileStore* profileStore() override;
    CKhDocumentServices* documentServices() override;
    CKhColorServices* colorServices() override;
    CKhUiHost* uiHost() override;
    CKhPaletteHost* paletteHost() override;

    /// The document that currentDocument answers, and whose drawing becomes the working database; null for
    /// none. Not owned: take it away before it goes.
    void SetCurrentDocument(KtApDocument* document);
    /// Folders in which findFile looks, first to last, behind the document's own folder, and in which fonts
    /// are looked for.
    void SetSupportDirectories(std::vector<CString> folders);
    /// Folders in which fonts are looked for, earlier ones first, in the place of all others: the system's
    /// and the user's fonts folder, the fonts that the registry lists, and the support directories. None for
    /// a host without fonts. Folders below them aren't looked through.
    void SetFontFolders(std::vector<CString> folders);
    /// The file that remembers what was read from font files; null or empty for none. At first one in the
    /// user's local application data.
    void SetFontCacheFile(const wchar_t* path);
    /// The shape font whose strokes stand for those of one that a drawing names and nobody finds: a path, or
    /// a name that is looked for in the support directories. Null or empty, as at first, for a screen font.
    void SetShapeFontInPlace(const wchar_t* file);
    /// Makes the font file `name`, which the user asked for, one of the fonts, wherever it is: a path, or a
    /// name that is looked for in the support directories and among the fonts. Answers its first style, owned
    /// by the font list; null if there is no such file or it is no font, with `message` the reason to show,
    /// in the user's language. `message` stays if the file is a font.
    CKhFontStyle* LoadFontFile(const wchar_t* name, CString& message);
    /// Value of a path variable such as "PrinterStyleSheetDir", which is the folder "Plot Styles" below the
    /// program's until it is set; folders are separated by semicolons.
    void SetPathVariable(const wchar_t* name, const wchar_t* value);
    /// Makes the host answer `service` to serviceManager()->getService(name); null takes it away. Not owned.
    /// At first there are "CKhPlotStyle", which reads the style sheets in the folders of that path variable,
    /// "CKhPlotSvr", which exports drawings, and "CKhSecurity", which seals drawing files.
    void SetService(const wchar_t* name, CKhService* service);

    /// The names that productInfo() answers. Texts that were answered before stay valid.
    void SetProduct(StandinProduct product);
    /// The formats that drawings can be saved in besides the built-in ones, in the order of lists; none at
    /// first.
    void SetSaveFormats(std::vector<StandinSaveFormat> formats);
    /// The scheme that colorServices() answers; at first kSystem, and so the one that the system is in at
    /// each question. Windows that show are not told.
    void SetColorScheme(StandinColorScheme scheme);
    /// The folder of the help pages, FOLDER\en\TOPIC.html and FOLDER\zh\TOPIC.html; null or empty for "help"
    /// below the program's folder. The page of the user's language opens, or else the English one. Without a
    /// topic it is that of the dialog at hand: its help tag (CKbUiDialog::SetDialogName and
    /// SetDialogHelpTag), or the topic of its template's help id; the page of a tab counts before its dialog.
    /// Else it is "index".
    void SetHelpFolder(const wchar_t* folder);
    /// What opens a help page, a full path; false if it can't. Null for the system's browser.
    void SetHelpOpener(std::function<bool(const CString& page)> opener);
    /// The topic of dialogs whose template has the help id `helpId`. Ids 20001 to 20099 are the host's own.
    void SetHelpTopic(unsigned helpId, const wchar_t* topic);

    /// The view whose display an export can show, and in which a window is picked for it; null for none. Not
    /// owned.
    void SetPlotView(StandinPlotView* view);
    /// Writes the current drawing to the PDF file `path` as the plot service's options say, with a file for
    /// each layout beside it where they ask for that. The pages are made on another thread; when that takes
    /// long, a window over the active one shows how far they are, and the user may stop. False with the
    /// reason in `message`, in the user's language, empty if the user stopped: nothing but whole files is
    /// left then. True with a text in `message` if the file lacks a part of the drawing. Other kinds of files
    /// aren't written.
    bool ExportDrawing(const wchar_t* path, CString& message);
    /// How long an export may take before that window comes, in milliseconds; half a second unless told.
    void SetExportPatience(unsigned milliseconds);
    /// What opens a file that was exported, where the options ask for it; false if it can't. Null for the
    /// system's program.
    void SetExportOpener(std::function<bool(const CString& path)> opener);

    // Replacing a facet: `facet` (not owned) answers from now on. Null puts the host's own back, but for
    // colours and windows, which may be null. What is replaced serves the host's other facets too:
    // measurement and lineweight settings, for instance, go to the profile store in force.
    void ReplaceServiceManager(CKhServiceManager* facet);
    void ReplaceRuntimeHost(CKhRuntimeHost* facet);
    void ReplaceProductInfo(CKhProductInfo* facet);
    void ReplaceProfileStore(CKhProfileStore* facet);
    void ReplaceDocumentServices(CKhDocumentServices* facet);
    void ReplaceColorServices(CKhColorServices* facet);
    void ReplaceUiHost(CKhUiHost* facet);
    void ReplacePaletteHost(CKhPaletteHost* facet);
    /// Puts all of the host's own facets back.
    void RestoreFacets();

private:
    std::unique_ptr<StandinFacets> m_facets;
    CKhSystem* m_former;
};
