// Every picker of a drawing property against a bare combo box with the same texts: filling it, dropping and
// closing its list, painting the items that a long list shows.
#include "window_bench.h"

#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include <ktui/ktui.h>
#include <od_db.h>
#include <standin_host.h>

namespace {

constexpr int kManyLinetypes = 2000;
constexpr int kPlotStyles = 50;
constexpr int kVisibleItems = 24;
constexpr int kRounds = 15;
constexpr int kFills = 10;
constexpr int kDrops = 5;
constexpr int kPaints = 10;
constexpr double kGoal = 1.1;
constexpr int kItemWidth = 200;  // pixels
constexpr int kItemHeight = 18;  // pixels

/// A drawing with plot styles, in use by the host for as long as the object lives.
class BenchDocument final : public KtApDocument {
public:
    explicit BenchDocument(CStandinHost& host) : m_drawing(new OdDbDatabase), m_host(host) {
        OdDbDictionaryPtr styles;
        m_drawing->getPlotStyleNameDictionary(styles, OdDb::kForWrite);
        for (int i = 0; i < kPlotStyles; ++i)
            styles->setAt((L"Style " + std::to_wstring(i)).c_str(), new OdDbPlaceHolder);
        m_host.SetCurrentDocument(this);
    }
    ~BenchDocument() { m_host.SetCurrentDocument(nullptr); }
    BenchDocument(const BenchDocument&) = delete;
    BenchDocument& operator=(const BenchDocument&) = delete;

    void addLinetypes(int count) {
        OdDbLinetypeTablePtr table;
        m_drawing->getLinetypeTable(table, OdDb::kForWrite);
        OdArray<double> dashes;
        for (const double dash : {6.0, -2.0, 0.0, -2.0}) dashes.append(dash);
        for (int i = 0; i < count; ++i) {
            const OdDbSymbolTableRecordPtr record = table->newRecord();
            record->setName((L"Dashes " + std::to_wstring(i * 7919 % count)).c_str());
            dynamic_cast<OdDbLinetypeTableRecord*>(record.get())->setDashes(dashes);
            table->add(record);
        }
    }

    OdDbDatabase* database() override { return m_drawing.get(); }
    CKhDrawingView* drawingView() override { return nullptr; }
    CKhVariableStore* variables() override { return nullptr; }

private:
    OdDbDatabasePtr m_drawing;
    CStandinHost& m_host;
};

/// Draws an item as plain text.
void draw_text_item(const DRAWITEMSTRUCT& item) {
    const bool selected = (item.itemState & ODS_SELECTED) != 0;
    wchar_t text[300] = {};
    if (item.itemID != static_cast<UINT>(-1))
        ::SendMessageW(item.hwndItem, CB_GETLBTEXT, item.itemID, reinterpret_cast<LPARAM>(text));
    RECT rect = item.rcItem;
    ::SetBkColor(item.hDC, ::GetSysColor(selected ? COLOR_HIGHLIGHT : COLOR_WINDOW));
    ::ExtTextOutW(item.hDC, 0, 0, ETO_OPAQUE, &rect, nullptr, 0, nullptr);
    ::SetTextColor(item.hDC, ::GetSysColor(selected ? COLOR_HIGHLIGHTTEXT : COLOR_WINDOWTEXT));
    ::SetBkMode(item.hDC, TRANSPARENT);
    ::DrawTextW(item.hDC, text, -1, &rect, DT_SINGLELINE | DT_VCENTER);
}

/// A bitmap on which a combo box's parent is told to draw items.
class Canvas {
public:
    Canvas() {
        CClientDC screen(nullptr);
        m_dc.CreateCompatibleDC(&screen);
        m_bitmap.CreateCompatibleBitmap(&screen, kItemWidth, kVisibleItems * kItemHeight);
        m_former = m_dc.SelectObject(&m_bitmap);
    }
    ~Canvas() { m_dc.SelectObject(m_former); }
    Canvas(const Canvas&) = delete;
    Canvas& operator=(const Canvas&) = delete;

    /// Seconds for painting as many items as a long list shows; shorter lists begin again.
    double paint(HWND combo) {
        const auto count = std::max<LRESULT>(1, ::SendMessageW(combo, CB_GETCOUNT, 0, 0));
        HWND parent = ::GetParent(combo);
        return bench::seconds_of([&] {
            for (int i = 0; i < kVisibleItems; ++i) {
                DRAWITEMSTRUCT item = {};
                item.CtlType = ODT_COMBOBOX;
                item.CtlID = bench::kPickerId;
                item.itemID = static_cast<UINT>(i % count);
                item.itemAction = ODA_DRAWENTIRE;
                item.hwndItem = combo;
                item.hDC = m_dc.m_hDC;
                item.rcItem = CRect(0, i * kItemHeight, kItemWidth, (i + 1) * kItemHeight);
                ::SendMessageW(parent, WM_DRAWITEM, bench::kPickerId, reinterpret_cast<LPARAM>(&item));
            }
            ::GdiFlush();
        });
    }

private:
    CDC m_dc;
    CBitmap m_bitmap;
    CBitmap* m_former;
};

/// A picker and the bare combo box that it is compared with.
class Pair {
public:
    explicit Pair(CKtUiMRUComboBox& picker) : m_picker(picker) {
        m_picker.Create(bench::kPickerStyle, bench::kPickerPlace, &m_holder, bench::kPickerId);
        ::SendMessageW(m_peer, CB_SETITEMHEIGHT, 0, m_picker.GetItemHeight(0));
        for (int i = 0; i < m_picker.GetCount(); ++i) {
            CString text;
            m_picker.GetLBText(i, text);
            m_texts.emplace_back(text.GetString());
        }
        fillPeer();
    }
    ~Pair() { m_picker.DestroyWindow(); }
    Pair(const Pair&) = delete;
    Pair& operator=(const Pair&) = delete;

    /// Compares `fill`, which fills the emptied picker, with the bare messages for the same texts.
    bench::Comparison compareFilling(const std::function<void()>& fill, int fills = kFills) {
        const auto repeat = [fills](auto&& empty, auto&& fillOnce) {
            double seconds = 0;
            for (int i = 0; i < fills; ++i) {
                empty();
                bench::drain_queue();
                seconds += bench::seconds_of(fillOnce);
            }
            return seconds;
        };
        return bench::compare(
            kRounds, fills, [&] { return repeat([&] { m_picker.ResetContent(); }, fill); },
            [&] {
                return repeat([&] { ::SendMessageW(m_peer, CB_RESETCONTENT, 0, 0); }, [&] { fillPeer(); });
            });
    }
    bench::Comparison compareDropping() {
        return bench::compare(
            kRounds, kDrops, [&] { return drop(m_picker.m_hWnd); }, [&] { return drop(m_peer); });
    }
    bench::Comparison comparePainting() {
        const auto repeat = [this](HWND combo) {
            double seconds = 0;
            for (int i = 0; i < kPaints; ++i) seconds += m_canvas.paint(combo);
            return seconds;
        };
        return bench::compare(
            kRounds, kPaints, [&] { return repeat(m_picker.m_hWnd); }, [&] { return repeat(m_peer); });
    }
    /// Empties the peer and fills it: what a refresh takes with bare messages.
    void refreshPeer() {
        ::SendMessageW(m_peer, CB_RESETCONTENT, 0, 0);
        fillPeer();
    }

private:
    void fillPeer() {
        for (size_t i = 0; i < m_texts.size(); ++i) {
            const auto text = reinterpret_cast<LPARAM>(m_texts[i].c_str());
            const LRESULT at = ::SendMessageW(m_peer, CB_INSERTSTRING, static_cast<WPARAM>(-1), text);
            ::SendMessageW(m_peer, CB_SETITEMDATA, static_cast<WPARAM>(at), static_cast<LPARAM>(i));
        }
    }
    static double drop(HWND combo) {
        double seconds = 0;
        for (int i = 0; i < kDrops; ++i) {
            seconds += bench::seconds_of([&] { ::SendMessageW(combo, CB_SHOWDROPDOWN, TRUE, 0); });
            bench::drain_queue();
            seconds += bench::seconds_of([&] { ::SendMessageW(combo, CB_SHOWDROPDOWN, FALSE, 0); });
            bench::drain_queue();
        }
        return seconds;
    }

    bench::PickerHolder m_holder;
    CKtUiMRUComboBox& m_picker;
    const bench::BareCombo m_bare{draw_text_item};
    HWND m_peer = m_bare.get();
    std::vector<std::wstring> m_texts;
    Canvas m_canvas;
};

void report_row(const char* what, const char* name, const bench::Comparison& result, double goal) {
    char label[100];
    std::snprintf(label, sizeof label, "%s: %s", name, what);
    bench::report(label, result, goal);
}

template <class Picker>
void measure(const char* name) {
    Picker picker;
    Pair pair(picker);
    report_row("filling", name, pair.compareFilling([&] { picker.AddItems(); }), kGoal);
    report_row("dropping and closing", name, pair.compareDropping(), kGoal);
    report_row("painting 24 items", name, pair.comparePainting(), 0);
}

void measure_many_linetypes() {
    CKtUiLineTypeComboBox picker;
    Pair pair(picker);
    const auto result = bench::compare(
        kRounds, 1, [&] { return bench::seconds_of([&] { picker.ShowLTypes(true); }); },
        [&] { return bench::seconds_of([&] { pair.refreshPeer(); }); });
    bench::report("linetypes: ShowLTypes(true) with 2,000", result, 0);
}

}  // namespace

void bench::measure_drawing_pickers() {
    auto& host = static_cast<CStandinHost&>(*CKhSystem::instance());
    BenchDocument document(host);
    measure<CKtUiColorComboBox>("colours");
    measure<CKtUiTrueColorComboBox>("true colours");
    measure<CKtUiLineWeightComboBox>("lineweights");
    measure<CKtUiPlotStyleNamesComboBox>("plot styles");
    measure<CKtUiArrowHeadComboBox>("arrowheads");
    measure<CKtUiPredefBlockComboBox>("blocks");
    measure<CKtUiFontComboBox>("fonts");
    document.addLinetypes(kVisibleItems);
    measure<CKtUiLineTypeComboBox>("linetypes");
    document.addLinetypes(kManyLinetypes);
    measure_many_linetypes();
}
