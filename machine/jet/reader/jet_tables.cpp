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
#include <stdexcept>
#include <string>
#include <vector>

namespace machine::jet {

namespace {

struct FreeTable {
    void operator()(MdbTableDef* table) const { mdb_free_tabledef(table); }
};
using TableDefinition = std::unique_ptr<MdbTableDef, FreeTable>;

constexpr int DELETED_ROW = 0x4000;
constexpr int ROW_OFFSET = 0x1FFF;

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
            const int on_page = mdb_get_int16(file_->pg_buf, file_->fmt->row_count_offset);
            for (int row = 0; row < on_page; ++row) {
                if (!read_row(row)) continue;
                if (++rows > definition_->num_rows) unsound("more rows than the table has");
                take_row(row_);
            }
        }
        if (rows != definition_->num_rows) unsound("fewer rows than the table has");
        return rows;
    }

  private:
    /// Returns false for a row that was deleted, or moved to a place that is read later.
    bool read_row(int number) {
        int start = 0;
        std::size_t length = 0;
        if (mdb_find_row(file_, number, &start, &length) < 0) unsound("a row outside its page");
        if ((start & DELETED_ROW) != 0) return false;
        start &= ROW_OFFSET;
        if (length == 0 || static_cast<std::size_t>(start) + length > PAGE_BYTES)
            unsound("a row outside its page");

        const int count = mdb_crack_row(definition_.get(), start, length, fields_.data());
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
            row_[i] = positions_[i].is_read ? cell_of(*field, columns_[i].kind, start, length) : Cell();
        }
        return true;
    }

    Cell cell_of(const MdbField& field, Kind kind, int row_start, std::size_t row_length) {
        if (field.is_null) return {};
        if (field.siz < 0 || field.start < row_start ||
            static_cast<std::size_t>(field.start - row_start) + static_cast<std::size_t>(field.siz) >
                row_length) {
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
