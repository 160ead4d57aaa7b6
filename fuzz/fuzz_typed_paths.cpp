// Any typed text is taken apart into folders, quoted pieces and names without a rest or a loss.
#include <ktui/nav/file_dialog_rules.h>
#include <ktui/nav/file_dialog_start.h>
#include <ktui/nav/find_terms.h>
#include <ktui/nav/type_change.h>

#include "text_lines.h"

namespace {

std::size_t quotesIn(const CString& text) {
    std::size_t count = 0;
    for (int i = 0; i < text.GetLength(); ++i) count += text[i] == L'"';
    return count;
}

void expectFolders(const CString& text) {
    const std::vector<CString> folders = FoldersNamedBy(text);
    const std::size_t pairs = quotesIn(text) / 2;
    if (folders.size() < pairs || folders.size() > pairs + 1) fail("a pair of quotes is no folder");
    for (const CString& folder : folders) {
        if (folder.FindOneOf(L"\"") >= 0) fail("a folder holds a quote");
        const CString end = folder.Right(1);
        if (end != L"\\" && end != L"/") fail("a folder does not end in a separator");
    }
    const auto piece = FirstQuotedPiece(text);
    if (piece.has_value() != (pairs > 0)) fail("a quoted piece is missed");
    if (piece && text.Find(L"\"" + *piece + L"\"") < 0) fail("a quoted piece is not in the text");
}

void expectFirstPath(const CString& text) {
    const CString path = FirstPath(text);
    if (quotesIn(text) == 0 ? path != text : path.Find(L'"') >= 0) fail("not the first path");
    if (path.GetLength() > text.GetLength()) fail("a path longer than the text");
}

void expectNames(const CString& text) {
    if (NameToShow(text, true).Find(L'\\') >= 0) fail("a name with a folder");
    if (text.Find(L'\\') < 0 && !NameToShow(text, true).IsEmpty()) fail("a name without a folder is shown");
    if (NameToShow(text, false).IsEmpty() && !text.IsEmpty() && text.Right(1) != L"\\")
        fail("a name is lost");
    if (IsNameToLocate(text) != (!text.IsEmpty() && text != L".")) fail("a name that is not looked for");
    if (!text.IsEmpty() && IsFolderShown(text, text) != (text.Right(1) == L"\\"))
        fail("a folder is not the one shown");
    if (BeginsLikeUrl(text) && !CountsAsUrl(text, text, text)) fail("an address is none");
    if (const auto named = NameForPattern(text, L"*.dxf"); named && named->FindOneOf(L"\\/") >= 0)
        fail("a typed name with a folder");
    StartName(text);
    const StartFolder start = TemplateFolder(text);
    if (start.kept.GetLength() >= kPathRoom) fail("a start folder too long to keep");
    NameInFolder(start, text);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const std::wstring& line : linesOf(data, size)) {
        const CString text = line.c_str();
        expectFolders(text);
        expectFirstPath(text);
        expectNames(text);
    }
    return 0;
}
