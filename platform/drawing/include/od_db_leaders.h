// Leaders: lines with an arrowhead that lead from a note to what it is about.
#pragma once

#include <vector>
#include "od_array.h"
#include "od_db_entity.h"

/// A leader without its note, which is an entity of its own.
class ODRT_API OdDbLeader : public OdDbEntity {
public:
    const char* dxfName() const override { return "LEADER"; }
    /// From the arrowhead to the note.
    OdArray<OdGePoint3d> vertices() const;
    bool hasArrowhead() const { return m_groups.integer(71, 1) != 0; }
    bool isSplined() const { return m_groups.integer(72) != 0; }
    /// Whether a line under or beside the text goes on from the last vertex.
    bool hasHookLine() const { return m_groups.integer(75) != 0; }
    /// Whether that line runs against horizontalDirection().
    bool isHookLineReversed() const { return m_groups.integer(74) == 0; }
    /// What the note is: 0 a text, 1 a tolerance, 2 a block, 3 nothing.
    int annotationKind() const { return static_cast<int>(m_groups.integer(73, 3)); }
    double textWidth() const { return m_groups.real(41); }
    OdGePoint3d horizontalDirection() const { return m_groups.point(211, {1, 0, 0}); }
    /// The name of the dimension style.
    OdString dimStyleName() const { return m_groups.text(3); }
};

/// One line of a multileader, from its arrowhead on; the end is that of its branch.
struct OdDbMLeaderLine {
    std::vector<OdGePoint3d> vertices;
};

/// A branch of a multileader: lines that meet at one point beside the content.
struct OdDbMLeaderBranch {
    OdGePoint3d end;
    OdGePoint3d doglegDirection;
    double doglegLength = 0;
    bool hasEnd = false;
    std::vector<OdDbMLeaderLine> lines;
};

/// The content of a multileader.
struct OdDbMLeaderContent {
    double arrowSize = 0;
    bool hasText = false;
    OdString text;
    OdGePoint3d textLocation, textDirection{1, 0, 0};
    double textHeight = 0, textWidth = 0, textRotation = 0, lineSpacing = 1;
    int textAlignment = 1;  ///< 1 left, 2 centre, 3 right
    OdDbHandle textStyle = 0;
    bool hasBlock = false;
    OdDbHandle block = 0;
    OdGePoint3d blockLocation, blockScale{1, 1, 1};
    double blockRotation = 0;  ///< radians
    std::vector<OdDbMLeaderBranch> branches;
};

/// A leader with its content, text or block, in one object.
class ODRT_API OdDbMLeader : public OdDbEntity {
public:
    explicit OdDbMLeader(const char* name = "MULTILEADER") : m_name(name) {}
    const char* dxfName() const override { return m_name; }
    OdDbMLeaderContent content() const;
    /// 0 no lines, 1 straight ones, 2 splines.
    int lineKind() const;
    bool hasDogleg() const;
    /// The arrowhead's block; null for the filled, closed one.
    OdDbObjectId arrowBlock() const;

private:
    const char* m_name;
};
