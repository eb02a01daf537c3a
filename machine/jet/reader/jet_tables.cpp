#include "machine/jet/reader/jet_tables.h"

#include "machine/jet/file/jet_header.h"
#include "machine/jet/file/jet_values.h"

// Before libmdb's header, which would include it as C.
#include <glib.h>
//
#include <deque>
#include <mdbtools.h>
#include <memory>
#include <optional>
#include <set>
#include <stdexcept>
#include <string>
#include <vector>

namespace machine::jet {

namespace {

struct FreeTable {
    void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
};
using TableDefinition = std::unique_ptr<MdbTableDef, FreeTable>;

/// Where a data page names the table that it belongs to.
constexpr int OWNER = 4;

/// A row's slot on its page. The slot of a row that outgrew its page and moved holds a pointer to its new
/// place, a slot with the other mark, which may point on in turn. A deleted row's own slot has both marks;
/// the new place that it had stays behind, and nothing points at it any more.
struct Slot {
    static constexpr int MOVED = 0x4000;
    static constexpr int NEW_PLACE = 0x8000;
    static constexpr int START = 0x1FFF;

    int marks;
    int start;
    std::size_t length;
};

[[noreturn]] void unsound(const char* what) { throw std::runtime_error(what); }

TableDefinition definition_of(MdbHandle* file, Table table) {
    std::string name(name_of(table));
    TableDefinition definition(mdb_read_table_by_name(file, name.data(), MDB_TABLE));
    if (!definition || mdb_read_columns(definition.get()) == nullptr) unsound("no such table");
    mdb_rewind_table(definition.get());
    return definition;
}

bool holds(const MdbColumn& column, Kind kind) {
    switch (kind) {
        case Kind::number:
            return column.col_type == MDB_LONGINT || column.col_type == MDB_INT ||
                   column.col_type == MDB_BYTE;
        case Kind::text:
            return column.col_type == MDB_TEXT;
        case Kind::memo:
            return column.col_type == MDB_MEMO || column.col_type == MDB_TEXT;
    }
    return false;
}

/// One of our columns as libmdb knows it.
struct Position {
    unsigned column;
    /// False for memos and for a column of an unexpected type.
    bool is_read;
};

std::vector<Position> positions_of(const MdbTableDef& definition, Table table) {
    std::vector<Position> positions;
    for (const Column& wanted : columns_of(table)) {
        std::optional<Position> found;
        for (unsigned i = 0; i < definition.num_cols; ++i) {
            const auto* column = static_cast<const MdbColumn*>(g_ptr_array_index(definition.columns, i));
            if (column == nullptr || g_ascii_strcasecmp(column->name, wanted.name.data()) != 0) continue;
            const bool expected = holds(*column, wanted.kind);
            if (expected || !wanted.used) found = Position{i, expected && wanted.kind != Kind::memo};
        }
        if (!found) unsound("no such column");
        positions.push_back(*found);
    }
    return positions;
}

std::int32_t number_of(std::string_view bytes) {
    switch (bytes.size()) {
        case 1:
            return static_cast<unsigned char>(bytes[0]);
        case 2:
            return static_cast<std::int16_t>(little_endian_16(bytes, 0));
        case 4:
            return static_cast<std::int32_t>(little_endian_32(bytes, 0));
        default:
            unsound("a number of an odd length");
    }
}

/// The rows of a table, page by page.
class RowReader {
  public:
    RowReader(MdbHandle* file, Table table)
        : file_(file),
          definition_(definition_of(file, table)),
          columns_(columns_of(table)),
          positions_(positions_of(*definition_, table)),
          fields_(definition_->num_cols),
          field_of_column_(definition_->num_cols) {}

    std::uint32_t read(const std::function<void(const Row&)>& take_row) {
        std::uint32_t rows = 0;
        while (mdb_read_next_dpg(definition_.get()) > 0) {
            const std::uint32_t page = file_->cur_pg;
            const int on_page = slots_on_page();
            for (int number = 0; number < on_page; ++number) {
                turn_to(page);
                Slot slot = slot_of(number);
                if ((slot.marks & Slot::NEW_PLACE) != 0) continue;
                if (++rows > definition_->num_rows) unsound("more rows than the table has");
                while ((slot.marks & Slot::MOVED) != 0) slot = new_place_of(slot);
                read_row(slot);
                take_row(row_);
            }
        }
        if (rows != definition_->num_rows) unsound("fewer rows than the table has");
        return rows;
    }

  private:
    void turn_to(std::uint32_t page) {
        if (mdb_read_pg(file_, page) != static_cast<ssize_t>(PAGE_BYTES)) unsound("a page outside the file");
    }

    int slots_on_page() const { return mdb_get_int16(file_->pg_buf, file_->fmt->row_count_offset); }

    Slot slot_of(int number) {
        int start = 0;
        std::size_t length = 0;
        if (mdb_find_row(file_, number, &start, &length) < 0) unsound("a row outside its page");
        const Slot slot{start & (Slot::MOVED | Slot::NEW_PLACE), start & Slot::START, length};
        if (static_cast<std::size_t>(slot.start) + length > PAGE_BYTES) unsound("a row outside its page");
        return slot;
    }

    /// Turns to the page that a moved row's slot points at. Each place is some row's once, so that no
    /// pointers lead in a circle.
    Slot new_place_of(const Slot& slot) {
        if (slot.length < sizeof(std::uint32_t)) unsound("a moved row without its new place");
        const auto pointer = static_cast<std::uint32_t>(mdb_get_int32(file_->pg_buf, slot.start));
        if (!new_places_.insert(pointer).second) unsound("two rows in one place");
        turn_to(pointer >> 8);
        const int number = static_cast<int>(pointer & 0xFF);
        if (file_->pg_buf[0] != MDB_PAGE_DATA ||
            static_cast<std::uint32_t>(mdb_get_int32(file_->pg_buf, OWNER)) != definition_->entry->table_pg ||
            number >= slots_on_page()) {
            unsound("a row moved out of its table");
        }
        const Slot place = slot_of(number);
        if ((place.marks & Slot::NEW_PLACE) == 0) unsound("a row moved to another row's place");
        return place;
    }

    void read_row(const Slot& slot) {
        if (slot.length == 0) unsound("a row outside its page");
        const int count = mdb_crack_row(definition_.get(), slot.start, slot.length, fields_.data());
        if (count < 0) unsound("a row without sense");
        for (const MdbField& field : fields_) {
            const auto column = static_cast<std::size_t>(field.colnum);
            if (column >= fields_.size()) unsound("a field of no column");
            field_of_column_[column] = &field;
        }

        texts_.clear();
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const MdbField* field = field_of_column_[positions_[i].column];
            if (field == nullptr) unsound("a row without a column");
            row_[i] = positions_[i].is_read ? cell_of(*field, columns_[i].kind, slot) : Cell();
        }
    }

    Cell cell_of(const MdbField& field, Kind kind, const Slot& slot) {
        if (field.is_null) return {};
        if (field.siz < 0 || field.start < slot.start ||
            static_cast<std::size_t>(field.start - slot.start) + static_cast<std::size_t>(field.siz) >
                slot.length) {
            unsound("a field outside its row");
        }
        const std::string_view bytes(reinterpret_cast<const char*>(file_->pg_buf) + field.start,
                                     static_cast<std::size_t>(field.siz));
        if (kind == Kind::number) return number_of(bytes);
        auto text = decode_jet_text(bytes);
        if (!text) unsound("a text that ends in the middle of a character");
        return platform::TextView(texts_.emplace_back(std::move(*text)));
    }

    MdbHandle* file_;
    TableDefinition definition_;
    std::span<const Column> columns_;
    std::vector<Position> positions_;
    std::vector<MdbField> fields_;
    std::vector<const MdbField*> field_of_column_;
    /// The pointers that were followed, each a page and in its lowest byte a slot.
    std::set<std::uint32_t> new_places_;
    std::deque<platform::Text> texts_;
    Row row_;
};

}  // namespace

JetTables::JetTables(const char* path) : handle_(mdb_open(path, MDB_NOFLAGS)) {
    if (handle_ == nullptr) unsound("no Jet file");
}

JetTables::~JetTables() { mdb_close(static_cast<MdbHandle*>(handle_)); }

std::uint32_t JetTables::read(Table table, const std::function<void(const Row&)>& take_row) {
    return RowReader(static_cast<MdbHandle*>(handle_), table).read(take_row);
}

}  // namespace machine::jet
