#include "bench/bare_jet_read.h"

// Included before libmdb's header, which would include it inside extern "C".
#include <glib.h>
//
#include <mdbtools.h>
#include <vector>

namespace bench {

namespace {

int read_table(MdbHandle* file, std::string name) {
    MdbTableDef* table = mdb_read_table_by_name(file, name.data(), MDB_TABLE);
    mdb_read_columns(table);
    mdb_rewind_table(table);
    std::vector<std::vector<char>> values(table->num_cols, std::vector<char>(MDB_BIND_SIZE));
    std::vector<int> lengths(table->num_cols);
    for (unsigned i = 0; i < table->num_cols; ++i)
        mdb_bind_column(table, static_cast<int>(i) + 1, values[i].data(), &lengths[i]);
    int rows = 0;
    while (mdb_fetch_row(table)) ++rows;
    mdb_free_tabledef(table);
    return rows;
}

}  // namespace

int bare_jet_read(const std::string& path) {
    MdbHandle* file = mdb_open(path.c_str(), MDB_NOFLAGS);
    if (file == nullptr) return 0;
    read_table(file, "tbl_folder");
    const int cards = read_table(file, "tbl_namecard");
    mdb_close(file);
    return cards;
}

}  // namespace bench
