#include "od_version_rules.h"

#include <algorithm>
#include <iterator>

#include "od_header_variables.h"

namespace {

using namespace OdDb;
using enum OdDxfLossKind;

// In the order of the types.
constexpr OdGroupRule kGroups[] = {
    {kOdCommonGroups, 48, 48, kDHL_1012},
    {kOdCommonGroups, 284, 284, kDHL_1021},
    {kOdCommonGroups, 347, 348, kDHL_1021},
    {kOdCommonGroups, 370, 370, kDHL_1015, kLineWeight},
    {kOdCommonGroups, 380, 380, kDHL_1015, kPlotStyle},
    {kOdCommonGroups, 390, 390, kDHL_1015, kPlotStyle},
    {kOdCommonGroups, 420, 430, kDHL_1018, kTrueColor},
    {kOdCommonGroups, 440, 440, kDHL_1018, kTransparency},
    {"ATTDEF", 280, 280, kDHL_1021},
    {"ATTRIB", 280, 280, kDHL_1021},
    {"BLOCK_RECORD", 70, 70, kDHL_1021},
    {"BLOCK_RECORD", 280, 281, kDHL_1021},
    {"BLOCK_RECORD", 310, 310, kDHL_1015},
    {"BLOCK_RECORD", 340, 340, kDHL_1015},
    {"DIMENSION", 41, 42, kDHL_1015},
    {"DIMENSION", 71, 75, kDHL_1015},
    {"DIMENSION", 280, 280, kDHL_1024},
    {"DIMSTYLE", 49, 50, kDHL_1021},
    {"DIMSTYLE", 69, 69, kDHL_1021},
    {"DIMSTYLE", 70, 70, kDHL_1021, kSetting, 2},
    {"DIMSTYLE", 79, 79, kDHL_1015},
    {"DIMSTYLE", 90, 90, kDHL_1021},
    {"DIMSTYLE", 148, 148, kDHL_1015},
    {"DIMSTYLE", 179, 179, kDHL_1015},
    {"DIMSTYLE", 276, 279, kDHL_1015},
    {"DIMSTYLE", 289, 289, kDHL_1015},
    {"DIMSTYLE", 290, 290, kDHL_1021},
    {"DIMSTYLE", 294, 294, kDHL_1024},
    {"DIMSTYLE", 341, 344, kDHL_1015},
    {"DIMSTYLE", 345, 347, kDHL_1021},
    {"DIMSTYLE", 371, 372, kDHL_1015, kLineWeight},
    {"HATCH", 450, 470, kDHL_1018},
    {"IMAGE", 290, 290, kDHL_1024},
    {"LAYER", 290, 290, kDHL_1015, kPlotStyle},
    {"LAYER", 347, 348, kDHL_1021},
    {"LAYER", 370, 370, kDHL_1015, kLineWeight},
    {"LAYER", 390, 390, kDHL_1015, kPlotStyle},
    {"LAYER", 420, 430, kDHL_1018, kTrueColor},
    {"LTYPE", 9, 9, kDHL_1012},
    {"LTYPE", 44, 46, kDHL_1012},
    {"LTYPE", 50, 50, kDHL_1012},
    {"LTYPE", 74, 75, kDHL_1012},
    {"LWPOLYLINE", 91, 91, kDHL_1024},
    {"MTEXT", 44, 44, kDHL_1015},
    {"MTEXT", 45, 45, kDHL_1018},
    {"MTEXT", 46, 46, kDHL_1021},
    {"MTEXT", 63, 63, kDHL_1018},
    {"MTEXT", 73, 73, kDHL_1015},
    {"MTEXT", 90, 90, kDHL_1018},
    {"MTEXT", 421, 441, kDHL_1018},
    {"UCS", 13, 13, kDHL_1015},
    {"UCS", 23, 23, kDHL_1015},
    {"UCS", 33, 33, kDHL_1015},
    {"UCS", 71, 71, kDHL_1015},
    {"UCS", 79, 79, kDHL_1015},
    {"UCS", 146, 146, kDHL_1015},
    {"UCS", 346, 346, kDHL_1015},
    {"VIEW", 72, 72, kDHL_1015},
    {"VIEW", 73, 73, kDHL_1021},
    {"VIEW", 79, 79, kDHL_1015},
    {"VIEW", 110, 132, kDHL_1015},
    {"VIEW", 146, 146, kDHL_1015},
    {"VIEW", 281, 281, kDHL_1015},
    {"VIEW", 332, 334, kDHL_1021},
    {"VIEW", 345, 346, kDHL_1015},
    {"VIEW", 348, 348, kDHL_1021},
    {"VIEW", 361, 361, kDHL_1021},
    {"VIEWPORT", 1, 1, kDHL_1015},
    {"VIEWPORT", 12, 17, kDHL_1015},
    {"VIEWPORT", 22, 27, kDHL_1015},
    {"VIEWPORT", 36, 37, kDHL_1015},
    {"VIEWPORT", 42, 51, kDHL_1015},
    {"VIEWPORT", 61, 65, kDHL_1021},
    {"VIEWPORT", 71, 79, kDHL_1015},
    {"VIEWPORT", 90, 91, kDHL_1015},
    {"VIEWPORT", 110, 132, kDHL_1015},
    {"VIEWPORT", 141, 142, kDHL_1021},
    {"VIEWPORT", 146, 146, kDHL_1015},
    {"VIEWPORT", 170, 170, kDHL_1018},
    {"VIEWPORT", 281, 281, kDHL_1015},
    {"VIEWPORT", 282, 292, kDHL_1021},
    {"VIEWPORT", 331, 331, kDHL_1015},
    {"VIEWPORT", 332, 335, kDHL_1021},
    {"VIEWPORT", 340, 341, kDHL_1015},
    {"VIEWPORT", 343, 344, kDHL_1021},
    {"VIEWPORT", 345, 346, kDHL_1015},
    {"VIEWPORT", 348, 361, kDHL_1021},
    {"VIEWPORT", 421, 431, kDHL_1021},
    {"VPORT", 1, 1, kDHL_1015},
    {"VPORT", 60, 63, kDHL_1021},
    {"VPORT", 65, 65, kDHL_1015},
    {"VPORT", 79, 79, kDHL_1015},
    {"VPORT", 110, 132, kDHL_1015},
    {"VPORT", 141, 142, kDHL_1021},
    {"VPORT", 146, 146, kDHL_1015},
    {"VPORT", 170, 170, kDHL_1021},
    {"VPORT", 281, 281, kDHL_1015},
    {"VPORT", 282, 292, kDHL_1021},
    {"VPORT", 332, 333, kDHL_1021},
    {"VPORT", 345, 346, kDHL_1015},
    {"VPORT", 348, 348, kDHL_1021},
    {"VPORT", 361, 361, kDHL_1021},
    {"VPORT", 421, 431, kDHL_1021},
};

struct Since {
    std::string_view name;
    DwgVersion version;
};

constexpr Since kEntities[] = {{"3DFACE", kDHL_1009},
                               {"ARC", kDHL_1009},
                               {"ATTDEF", kDHL_1009},
                               {"ATTRIB", kDHL_1009},
                               {"CIRCLE", kDHL_1009},
                               {"DIMENSION", kDHL_1009},
                               {"INSERT", kDHL_1009},
                               {"LINE", kDHL_1009},
                               {"POINT", kDHL_1009},
                               {"POLYLINE", kDHL_1009},
                               {"SEQEND", kDHL_1009},
                               {"SHAPE", kDHL_1009},
                               {"SOLID", kDHL_1009},
                               {"TEXT", kDHL_1009},
                               {"TRACE", kDHL_1009},
                               {"VERTEX", kDHL_1009},
                               {"VIEWPORT", kDHL_1009},
                               {"HATCH", kDHL_1014},
                               {"IMAGE", kDHL_1014},
                               {"LWPOLYLINE", kDHL_1014},
                               {"OLE2FRAME", kDHL_1014},
                               {"WIPEOUT", kDHL_1015},
                               {"ACAD_TABLE", kDHL_1018},
                               {"ARC_DIMENSION", kDHL_1018},
                               {"MPOLYGON", kDHL_1018},
                               {"LARGE_RADIAL_DIMENSION", kDHL_1018},
                               {"CAMERA", kDHL_1021},
                               {"DGNUNDERLAY", kDHL_1021},
                               {"DWFUNDERLAY", kDHL_1021},
                               {"EXTRUDEDSURFACE", kDHL_1021},
                               {"HELIX", kDHL_1021},
                               {"LIGHT", kDHL_1021},
                               {"LOFTEDSURFACE", kDHL_1021},
                               {"MULTILEADER", kDHL_1021},
                               {"MLEADER", kDHL_1021},
                               {"PLANESURFACE", kDHL_1021},
                               {"REVOLVEDSURFACE", kDHL_1021},
                               {"SECTION", kDHL_1021},
                               {"SECTIONOBJECT", kDHL_1021},
                               {"SURFACE", kDHL_1021},
                               {"SWEPTSURFACE", kDHL_1021},
                               {"MESH", kDHL_1024},
                               {"NURBSURFACE", kDHL_1024},
                               {"PDFUNDERLAY", kDHL_1024},
                               {"GEOPOSITIONMARKER", kDHL_1027}};

constexpr Since kObjects[] = {{"IDBUFFER", kDHL_1014},
                              {"IMAGEDEF", kDHL_1014},
                              {"IMAGEDEF_REACTOR", kDHL_1014},
                              {"LAYER_FILTER", kDHL_1014},
                              {"LAYER_INDEX", kDHL_1014},
                              {"RASTERVARIABLES", kDHL_1014},
                              {"SORTENTSTABLE", kDHL_1014},
                              {"SPATIAL_FILTER", kDHL_1014},
                              {"SPATIAL_INDEX", kDHL_1014},
                              {"ACDBDICTIONARYWDFLT", kDHL_1015},
                              {"ACDBPLACEHOLDER", kDHL_1015},
                              {"DICTIONARYVAR", kDHL_1015},
                              {"LAYOUT", kDHL_1015},
                              {"PLOTSETTINGS", kDHL_1015},
                              {"VBA_PROJECT", kDHL_1015},
                              {"WIPEOUTVARIABLES", kDHL_1015},
                              {"DBCOLOR", kDHL_1018},
                              {"FIELD", kDHL_1018},
                              {"FIELDLIST", kDHL_1018},
                              {"TABLESTYLE", kDHL_1018},
                              {"CELLSTYLEMAP", kDHL_1021},
                              {"DATALINK", kDHL_1021},
                              {"DGNDEFINITION", kDHL_1021},
                              {"DWFDEFINITION", kDHL_1021},
                              {"MATERIAL", kDHL_1021},
                              {"MLEADERSTYLE", kDHL_1021},
                              {"SCALE", kDHL_1021},
                              {"SUN", kDHL_1021},
                              {"TABLECONTENT", kDHL_1021},
                              {"TABLEGEOMETRY", kDHL_1021},
                              {"VISUALSTYLE", kDHL_1021},
                              {"GEODATA", kDHL_1024},
                              {"PDFDEFINITION", kDHL_1024},
                              {"DETAILVIEWSTYLE", kDHL_1027},
                              {"SECTIONVIEWSTYLE", kDHL_1027}};

/// The names of variables beside those that OdDbDatabase has functions for.
struct Variables {
    DwgVersion since;
    std::string_view names;  // with blanks between
};

constexpr Variables kVariables[] = {
    {kDHL_1009,
     "ATTDIA ATTREQ AXISMODE AXISUNIT BLIPMODE CHAMFERA CHAMFERB COORDS DIMALT DIMALTD DIMALTF DIMAPOST "
     "DIMASO DIMBLK DIMBLK1 DIMBLK2 DIMCEN DIMCLRD DIMCLRE DIMCLRT DIMDLE DIMDLI DIMEXE DIMEXO DIMGAP "
     "DIMLFAC DIMLIM DIMPOST DIMRND DIMSAH DIMSE1 DIMSE2 DIMSHO DIMSOXD DIMTAD DIMTFAC DIMTIH DIMTIX DIMTM "
     "DIMTOFL DIMTOH DIMTOL DIMTP DIMTSZ DIMTVP DRAGMODE FASTZOOM GRIDMODE GRIDUNIT HANDLING MAXACTVP MENU "
     "OSMODE PELEVATION PEXTMAX PEXTMIN PINSBASE PLIMCHECK PLIMMAX PLIMMIN PLINEWID PUCSNAME PUCSORG "
     "PUCSXDIR PUCSYDIR SHADEDGE SHADEDIF SKETCHINC SKPOLY SNAPANG SNAPBASE SNAPISOPAIR SNAPMODE SNAPSTYLE "
     "SNAPUNIT SPLFRAME SPLINESEGS SPLINETYPE SURFTAB1 SURFTAB2 SURFTYPE SURFU SURFV TDCREATE TDINDWG "
     "TDUPDATE TDUSRTIMER UCSNAME UCSORG UCSXDIR UCSYDIR USERI1 USERI2 USERI3 USERI4 USERI5 USERR1 USERR2 "
     "USERR3 USERR4 USERR5 USRTIMER VIEWCTR VIEWDIR VIEWMODE VIEWSIZE WORLDVIEW"},
    {kDHL_1012,
     "CHAMFERC CHAMFERD CMLJUST CMLSCALE CMLSTYLE DELOBJ DIMALTTD DIMALTTZ DIMALTU DIMALTZ DIMAUNIT DIMFIT "
     "DIMJUST DIMSD1 DIMSD2 DIMTDEC DIMTOLJ DIMTXSTY DIMTZIN DIMUNIT DIMUPT DISPSILH DWGCODEPAGE PICKSTYLE "
     "SAVEIMAGES TREEDEPTH"},
    {kDHL_1014, "ACADMAINTVER"},
    {kDHL_1015,
     "CEPSNID DIMADEC DIMALTRND DIMATFIT DIMAZIN DIMDSEP DIMFRAC DIMLDRBLK DIMLUNIT DIMLWD DIMLWE DIMTMOVE "
     "ENDCAPS EXTNAMES FINGERPRINTGUID HYPERLINKBASE JOINSTYLE OLESTARTUP PSVPSCALE PUCSBASE PUCSORGBACK "
     "PUCSORGBOTTOM PUCSORGFRONT PUCSORGLEFT PUCSORGRIGHT PUCSORGTOP PUCSORTHOREF PUCSORTHOVIEW STYLESHEET "
     "TDUCREATE TDUUPDATE UCSBASE UCSORGBACK UCSORGBOTTOM UCSORGFRONT UCSORGLEFT UCSORGRIGHT UCSORGTOP "
     "UCSORTHOREF UCSORTHOVIEW VERSIONGUID XEDIT"},
    {kDHL_1018,
     "DIMASSOC HALOGAP HIDETEXT INTERSECTIONCOLOR INTERSECTIONDISPLAY LASTSAVEDBY OBSCOLOR OBSLTYPE "
     "PROJECTNAME SORTENTS XCLIPFRAME"},
    {kDHL_1021,
     "3DDWFPREC CAMERADISPLAY CAMERAHEIGHT CMATERIAL CSHADOW DGNFRAME DIMARCSYM DIMFXL DIMFXLON DIMJOGANG "
     "DIMLTEX1 DIMLTEX2 DIMLTYPE DIMTFILL DIMTFILLCLR DRAGVS DWFFRAME INTERFERECOLOR INTERFEREOBJVS "
     "INTERFEREVPVS LATITUDE LENSLENGTH LIGHTGLYPHDISPLAY LOFTANG1 LOFTANG2 LOFTMAG1 LOFTMAG2 LOFTNORMALS "
     "LOFTPARAM LONGITUDE NORTHDIRECTION PSOLHEIGHT PSOLWIDTH REALWORLDSCALE SHADOWPLANELOCATION SHOWHIST "
     "SOLIDHIST STEPSIZE STEPSPERSEC TILEMODELIGHTSYNCH TIMEZONE"},
    {kDHL_1024, "DIMTXTDIRECTION"},
    {kDHL_1027, "REQUIREDVERSIONS"}};

/// Whether `word` stands among the words of `list`.
bool listed(std::string_view list, std::string_view word) {
    for (std::size_t at = 0; !word.empty() && (at = list.find(word, at)) != std::string_view::npos; ++at) {
        const std::size_t end = at + word.size();
        if ((at == 0 || list[at - 1] == ' ') && (end == list.size() || list[end] == ' ')) return true;
    }
    return false;
}

constexpr Since kKnownVariables[] = {
#define ODDB_SINCE(name, code, value, version) {#name, version},
    ODDB_INTEGER_VARIABLES(ODDB_SINCE) ODDB_REAL_VARIABLES(ODDB_SINCE) ODDB_NAME_VARIABLES(ODDB_SINCE)
#undef ODDB_SINCE
#define ODDB_SINCE(name, code, x, y, z, count, version) {#name, version},
        ODDB_POINT_VARIABLES(ODDB_SINCE)
#undef ODDB_SINCE
};

DwgVersion sinceIn(std::span<const Since> table, std::string_view name, DwgVersion other) {
    const auto found =
        std::find_if(table.begin(), table.end(), [&](const Since& s) { return s.name == name; });
    return found == table.end() ? other : found->version;
}

}  // namespace

std::span<const OdGroupRule> odGroupRules() { return kGroups; }

std::span<const OdGroupRule> odGroupRules(std::string_view type) {
    const auto isMeant = [&](const OdGroupRule& rule) { return rule.type == type; };
    const auto begin = std::find_if(std::begin(kGroups), std::end(kGroups), isMeant);
    return {begin, std::find_if_not(begin, std::end(kGroups), isMeant)};
}

bool odIsR12Code(int code) {
    return code < 80 || (code >= 140 && code < 150) || (code >= 170 && code < 180) ||
           (code >= 210 && code < 240) || code >= 999;
}

DwgVersion odFirstVersionOfEntity(std::string_view type) { return sinceIn(kEntities, type, kDHL_1012); }

DwgVersion odFirstVersionOfObject(std::string_view type) { return sinceIn(kObjects, type, kDHL_1012); }

DwgVersion odFirstVersionOfVariable(std::string_view name) {
    for (const Variables& group : kVariables)
        if (listed(group.names, name)) return group.since;
    return sinceIn(kKnownVariables, name, kDHL_Unknown);
}
