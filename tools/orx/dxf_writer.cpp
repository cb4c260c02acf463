// The R2000 drawing: a header, the symbol tables, the blocks of model and paper space, the
// entities and the objects (the root dictionary with the groups and the two layouts), every
// object with its handle, owner and subclass markers, as strict readers expect them. Only
// what the drawing needs is written; the layer table holds "0" and every layer used.
#include <algorithm>
#include <sstream>
#include <tuple>
#include <utility>

#include "dxf_format.h"
#include "numbers.h"
#include "safe_measures.h"

namespace orxtool {

namespace {

// The handles of the objects every drawing holds; entities and layers follow them.
enum FixedHandle : unsigned {
    kRootDictionary = 1,
    kVportTable,
    kLtypeTable,
    kLayerTable,
    kStyleTable,
    kViewTable,
    kUcsTable,
    kAppidTable,
    kDimstyleTable,
    kBlockRecordTable,
    kActiveVport,
    kLtypeByBlock,
    kLtypeByLayer,
    kLtypeContinuous,
    kStandardStyle,
    kAcadAppid,
    kStandardDimstyle,
    kModelRecord,
    kPaperRecord,
    kModelBlock,
    kModelBlockEnd,
    kPaperBlock,
    kPaperBlockEnd,
    kGroupDictionary,
    kLayoutDictionary,
    kModelLayout,
    kPaperLayout,
    kFirstFreeHandle
};

std::string hex(unsigned handle) {
    std::ostringstream out;
    out << std::uppercase << std::hex << handle;
    return out.str();
}

class DxfWriter {
public:
    explicit DxfWriter(std::vector<VertexList> const& lists) : m_lists(lists) {
        m_layers.emplace_back(kDefaultLayer);
        for (VertexList const& list : lists) {
            if (std::find(m_layers.begin(), m_layers.end(), list.layer) == m_layers.end()) {
                m_layers.push_back(list.layer);
            }
        }
        measureExtents();
    }

    std::string text() {
        header();
        section("CLASSES");
        endSection();
        tables();
        blocks();
        entities();
        objects();
        pair(0, "EOF");
        return m_out.str();
    }

private:
    void pair(int code, std::string const& value) { m_out << code << '\n' << value << '\n'; }
    void pair(int code, double value) { pair(code, exactText(value)); }
    void pair(int code, int value) { pair(code, std::to_string(value)); }
    void point(int code, double x, double y, double z) {
        pair(code, x);
        pair(code + 10, y);
        pair(code + 20, z);
    }
    void section(char const* name) {
        pair(0, "SECTION");
        pair(2, name);
    }
    void endSection() { pair(0, "ENDSEC"); }
    // The first groups of every object: type, handle (group 5, or `handleCode`), owner.
    void start(char const* type, unsigned handle, unsigned owner, int handleCode = 5) {
        pair(0, type);
        pair(handleCode, hex(handle));
        pair(330, hex(owner));
    }

    unsigned layerHandle(std::size_t i) const {
        return kFirstFreeHandle + static_cast<unsigned>(i);
    }
    unsigned entityHandle(std::size_t i) const {
        return kFirstFreeHandle + static_cast<unsigned>(m_layers.size() + i);
    }

    void measureExtents() {
        for (VertexList const& list : m_lists) {
            COrxPoint3d lo, hi;
            if (list.points.size() < 2 || !safeExtents(toPolyline(list), lo, hi)) {
                continue;
            }
            if (!m_hasExtents) {
                m_min = lo;
                m_max = hi;
                m_hasExtents = true;
            }
            m_min.set(std::min(m_min.x, lo.x), std::min(m_min.y, lo.y), std::min(m_min.z, lo.z));
            m_max.set(std::max(m_max.x, hi.x), std::max(m_max.y, hi.y), std::max(m_max.z, hi.z));
        }
    }

    void header() {
        section("HEADER");
        pair(9, "$ACADVER");
        pair(1, "AC1015");
        pair(9, "$DWGCODEPAGE");
        pair(3, "ANSI_1252");
        pair(9, "$INSBASE");
        point(10, 0.0, 0.0, 0.0);
        pair(9, "$EXTMIN");
        point(10, m_min.x, m_min.y, m_min.z);
        pair(9, "$EXTMAX");
        point(10, m_max.x, m_max.y, m_max.z);
        pair(9, "$HANDSEED");
        pair(5, hex(entityHandle(m_lists.size())));
        endSection();
    }

    void table(char const* name, unsigned handle, int entries) {
        start("TABLE", handle, 0);
        pair(2, name);
        pair(100, "AcDbSymbolTable");
        pair(70, entries);
    }
    void record(char const* type, char const* subclass, unsigned handle, unsigned table,
                std::string const& name, int handleCode = 5) {
        start(type, handle, table, handleCode);
        pair(100, "AcDbSymbolTableRecord");
        pair(100, subclass);
        pair(2, name);
        pair(70, 0);
    }

    void tables() {
        section("TABLES");
        table("VPORT", kVportTable, 1);
        activeViewport();
        pair(0, "ENDTAB");
        table("LTYPE", kLtypeTable, 3);
        for (auto [handle, name] :
             {std::pair{kLtypeByBlock, "ByBlock"}, std::pair{kLtypeByLayer, "ByLayer"},
              std::pair{kLtypeContinuous, "Continuous"}}) {
            record("LTYPE", "AcDbLinetypeTableRecord", handle, kLtypeTable, name);
            pair(3, name == std::string("Continuous") ? "Solid line" : "");
            pair(72, 65);
            pair(73, 0);
            pair(40, 0.0);
        }
        pair(0, "ENDTAB");
        table("LAYER", kLayerTable, static_cast<int>(m_layers.size()));
        for (std::size_t i = 0; i < m_layers.size(); ++i) {
            record("LAYER", "AcDbLayerTableRecord", layerHandle(i), kLayerTable, m_layers[i]);
            pair(62, 7);
            pair(6, "Continuous");
        }
        pair(0, "ENDTAB");
        table("STYLE", kStyleTable, 1);
        record("STYLE", "AcDbTextStyleTableRecord", kStandardStyle, kStyleTable, "Standard");
        pair(40, 0.0);
        pair(41, 1.0);
        pair(50, 0.0);
        pair(71, 0);
        pair(42, 2.5);
        pair(3, "txt");
        pair(4, "");
        pair(0, "ENDTAB");
        table("VIEW", kViewTable, 0);
        pair(0, "ENDTAB");
        table("UCS", kUcsTable, 0);
        pair(0, "ENDTAB");
        table("APPID", kAppidTable, 1);
        record("APPID", "AcDbRegAppTableRecord", kAcadAppid, kAppidTable, "ACAD");
        pair(0, "ENDTAB");
        table("DIMSTYLE", kDimstyleTable, 1);
        pair(100, "AcDbDimStyleTable");
        // Dimension styles carry their handle in group 105.
        record("DIMSTYLE", "AcDbDimStyleTableRecord", kStandardDimstyle, kDimstyleTable, "Standard",
               105);
        pair(0, "ENDTAB");
        table("BLOCK_RECORD", kBlockRecordTable, 2);
        for (auto [handle, name, layout] :
             {std::tuple{kModelRecord, "*Model_Space", kModelLayout},
              std::tuple{kPaperRecord, "*Paper_Space", kPaperLayout}}) {
            start("BLOCK_RECORD", handle, kBlockRecordTable);
            pair(100, "AcDbSymbolTableRecord");
            pair(100, "AcDbBlockTableRecord");
            pair(2, name);
            pair(340, hex(layout));
        }
        pair(0, "ENDTAB");
        endSection();
    }

    // The view of the whole drawing.
    void activeViewport() {
        record("VPORT", "AcDbViewportTableRecord", kActiveVport, kVportTable, "*Active");
        double width = m_max.x / 2 - m_min.x / 2, height = m_max.y / 2 - m_min.y / 2;  // halves
        pair(10, 0.0);
        pair(20, 0.0);
        pair(11, 1.0);
        pair(21, 1.0);
        pair(12, m_min.x / 2 + m_max.x / 2);
        pair(22, m_min.y / 2 + m_max.y / 2);
        pair(16, 0.0);
        pair(26, 0.0);
        pair(36, 1.0);
        pair(40, height > 0.0 ? 2.2 * height : 1.0);
        pair(41, height > 0.0 && width > 0.0 ? std::max(width / height, 1.0) : 1.0);
        pair(42, 50.0);
    }

    void blocks() {
        section("BLOCKS");
        for (auto [begin, end, owner, name] :
             {std::tuple{kModelBlock, kModelBlockEnd, kModelRecord, "*Model_Space"},
              std::tuple{kPaperBlock, kPaperBlockEnd, kPaperRecord, "*Paper_Space"}}) {
            start("BLOCK", begin, owner);
            pair(100, "AcDbEntity");
            pair(8, kDefaultLayer);
            pair(100, "AcDbBlockBegin");
            pair(2, name);
            pair(70, 0);
            point(10, 0.0, 0.0, 0.0);
            pair(3, name);
            pair(1, "");
            start("ENDBLK", end, owner);
            pair(100, "AcDbEntity");
            pair(8, kDefaultLayer);
            pair(100, "AcDbBlockEnd");
        }
        endSection();
    }

    void entities() {
        section("ENTITIES");
        for (std::size_t i = 0; i < m_lists.size(); ++i) {
            VertexList const& list = m_lists[i];
            start("LWPOLYLINE", entityHandle(i), kModelRecord);
            pair(100, "AcDbEntity");
            pair(8, list.layer);
            pair(100, "AcDbPolyline");
            pair(90, static_cast<int>(list.points.size()));
            pair(70, list.closed ? 1 : 0);
            if (list.z != 0.0) {
                pair(38, list.z);
            }
            for (VertexList::Point const& p : list.points) {
                pair(10, p.x);
                pair(20, p.y);
                if (p.bulge != 0.0) {
                    pair(42, p.bulge);
                }
            }
        }
        endSection();
    }

    void dictionary(unsigned handle, unsigned owner,
                    std::vector<std::pair<char const*, unsigned>> const& entries) {
        start("DICTIONARY", handle, owner);
        pair(100, "AcDbDictionary");
        pair(281, 1);
        for (auto const& [name, entry] : entries) {
            pair(3, name);
            pair(350, hex(entry));
        }
    }

    void objects() {
        section("OBJECTS");
        dictionary(kRootDictionary, 0,
                   {{"ACAD_GROUP", kGroupDictionary}, {"ACAD_LAYOUT", kLayoutDictionary}});
        dictionary(kGroupDictionary, kRootDictionary, {});
        dictionary(kLayoutDictionary, kRootDictionary,
                   {{"Model", kModelLayout}, {"Layout1", kPaperLayout}});
        layout(kModelLayout, kModelRecord, "Model", 0);
        layout(kPaperLayout, kPaperRecord, "Layout1", 1);
        endSection();
    }

    void layout(unsigned handle, unsigned blockRecord, char const* name, int tab) {
        start("LAYOUT", handle, kLayoutDictionary);
        pair(100, "AcDbPlotSettings");
        pair(1, "");
        pair(2, "none_device");
        pair(4, "");
        pair(6, "");
        pair(70, 0);
        pair(72, 1);  // paper units: millimetres
        pair(73, 0);
        pair(74, 5);  // plot the layout
        pair(7, "");
        pair(75, 16);  // scale 1:1
        pair(100, "AcDbLayout");
        pair(1, name);
        pair(70, 1);
        pair(71, tab);
        pair(10, 0.0);
        pair(20, 0.0);
        pair(11, 420.0);
        pair(21, 297.0);
        point(12, 0.0, 0.0, 0.0);
        point(14, m_min.x, m_min.y, m_min.z);
        point(15, m_max.x, m_max.y, m_max.z);
        pair(146, 0.0);
        point(13, 0.0, 0.0, 0.0);
        point(16, 1.0, 0.0, 0.0);
        point(17, 0.0, 1.0, 0.0);
        pair(76, 0);
        pair(330, hex(blockRecord));
    }

    std::vector<VertexList> const& m_lists;
    std::vector<std::string> m_layers;
    bool m_hasExtents = false;
    COrxPoint3d m_min, m_max;
    std::ostringstream m_out;
};

}  // namespace

std::string writeDxf(std::vector<VertexList> const& lists) {
    return DxfWriter(lists).text();
}

}  // namespace orxtool
