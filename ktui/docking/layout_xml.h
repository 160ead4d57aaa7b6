// Layouts as XML elements, and back with every rule checked. Without any window.
//
//     <KtUiPaletteLayouts Version="1">
//       <Layout Name="Drafting">
//         <Docked>
//           <Row Side="left" Extent="220">
//             <Split Direction="below" Share="400000"> <Pane Id="4001" Shown="1"/> <TabGroup Id="1"
//             Shown="1"/> </Split>
//           </Row>
//         </Docked>
//         <Floating> <Frame Left="300" Top="200" Width="240" Height="400"> … </Frame> </Floating>
//         <Tabs> <TabGroup Id="1" Active="4003"> <Tab Pane="4002" Shown="1"/> <Tab Pane="4003" Shown="1"/>
//         </TabGroup> </Tabs> <Panes> <State Id="4001" Name="Layers" Left="0" Top="0" Width="0" Height="0"/>
//         … </Panes>
//       </Layout>
//     </KtUiPaletteLayouts>
//
// Private to the library; its tests link it by itself.
#pragma once

#include <vector>

#include <ktui/docking/layout_element.h>
#include <ktui/docking/layout_record.h>

namespace layouts {

constexpr long kFileVersion = 1;
constexpr int kLongestName = 64;  ///< characters of a layout's name

enum class FaultKind {
    none,
    foreign,           ///< the root isn't that of layouts
    older,             ///< a version before this one's
    newer,             ///< a version behind this one's
    missingElement,    ///< `element` ought to be there
    unknownElement,    ///< `element` has no business there, or comes too often
    missingAttribute,  ///< `attribute`
    badAttribute,      ///< `attribute` has a value that it may not have
    doubledId,         ///< another element has that id, or the pane stands elsewhere
    unknownId,         ///< nothing has that id
    tooDeep,           ///< splits within splits
    tooMany,           ///< children of `element`
};

/// What is wrong, and where.
struct Fault {
    FaultKind kind = FaultKind::none;
    CString element;  ///< its way from the root: "Layout[2]/Docked/Row[1]"
    CString attribute, value;
};

struct NamedRecord {
    CString name;
    Record record;
};

/// Spaces around a name don't count.
CString TrimmedName(const CString& name);
/// Whether a trimmed name may be that of a layout.
bool IsName(const CString& name);

Element ToElement(const std::vector<NamedRecord>& layouts);
/// All layouts of a file or none. False, with `layouts` untouched and the first fault told.
bool FromElement(const Element& root, std::vector<NamedRecord>& layouts, Fault& fault);

}  // namespace layouts
