#!/usr/bin/env python3
"""Checks the schema and the rows of the calibration database.

usage: calibration.py DATABASE
"""

import re
import sqlite3
import sys

SCHEMA = {
    "CREATE TABLE Metadata (id INTEGER PRIMARY KEY, key TEXT, value TEXT)",
    "CREATE TABLE Module (id INTEGER PRIMARY KEY, cid TEXT, body INTEGER, name TEXT, fmin FLOAT, fmax FLOAT, amin FLOAT, "
    "amax FLOAT, lens_id TEXT, lens_name TEXT, bridge INTEGER, raw_only INTEGER, rgb_only INTEGER, "
    "lens_id_thumbnail INTEGER)",
    "CREATE TABLE Maker (id INTEGER PRIMARY KEY, name TEXT)",
    "CREATE TABLE Body (id INTEGER, maker INTEGER, model TEXT, identifier TEXT)",
}
INDEXES = {"module_body_idx", "module_cid_idx", "module_raw_only_idx", "module_rgb_only_idx", "module_fmin_idx",
           "module_fmax_idx", "module_lens_id_idx", "module_bridge_idx", "body_id_idx", "body_maker_idx",
           "body_identifier_idx"}

# Each query with its expected result.
QUERIES = {
    "PRAGMA integrity_check": "ok",
    "SELECT count(*) FROM Metadata": 1,
    "SELECT key || ' ' || value FROM Metadata": "Version 500.4.0.1",
    "SELECT count(*) FROM Module": 85935,
    "SELECT count(*) FROM Maker": 21,
    "SELECT count(*) FROM Body": 518,
    "SELECT count(DISTINCT id) FROM Body": 518,
    "SELECT count(DISTINCT identifier) FROM Body": 518,
    "SELECT count(DISTINCT body) FROM Module": 518,
    "SELECT count(*) FROM Module LEFT JOIN Body ON Body.id = Module.body WHERE Body.id IS NULL": 0,
    "SELECT count(*) FROM Body LEFT JOIN Maker ON Maker.id = Body.maker WHERE Maker.id IS NULL": 0,
    "SELECT count(*) FROM Body JOIN Maker ON Maker.id = maker WHERE identifier != replace(name || model, ' ', '')": 0,
    "SELECT count(*) FROM Module WHERE cid NOT GLOB 'C[0-9][0-9][0-9][0-9][0-9][a-z]_[0-9][0-9][0-9]'": 0,
    "SELECT count(*) FROM Module WHERE NOT (fmin BETWEEN 1 AND 1200 AND fmax BETWEEN fmin AND 1200)": 0,
    "SELECT count(*) FROM Module WHERE NOT (amin BETWEEN 0.9 AND 15 AND amax BETWEEN amin AND 45)": 0,
    "SELECT count(*) FROM Module WHERE lens_id = '' OR lens_name = '' OR name = ''": 0,
    "SELECT count(*) FROM Module WHERE lens_id = 'NULL' AND lens_name != 'NULL'": 0,
    "SELECT count(*) FROM Module WHERE bridge NOT IN (0, 1) OR raw_only NOT IN (0, 1) OR rgb_only NOT IN (0, 1)": 0,
    "SELECT count(*) FROM Module WHERE raw_only AND rgb_only": 0,
    "SELECT count(*) > 0 FROM Module WHERE lens_id = 'NULL'": 1,
    "SELECT count(DISTINCT cid) FROM Module WHERE cid IN ('C36841a_000', 'C35830b_002')": 2,
    # Two modules for one body and one kind of picture would be ambiguous.
    "SELECT count(*) FROM (SELECT 1 FROM Module GROUP BY cid, body, raw_only, rgb_only HAVING count(*) > 1)": 0,
}


def expected_statistics(connection):
    for name, table, sql in connection.execute("SELECT name, tbl_name, sql FROM sqlite_master WHERE type = 'index'"):
        column = re.search(r"\((\w+)\)", sql)[1]
        rows, keys = connection.execute(f"SELECT count(*), count(DISTINCT {column}) FROM {table}").fetchone()
        yield table, name, f"{rows} {(rows + keys - 1) // keys}"


def main():
    if len(sys.argv) != 2:
        sys.exit(__doc__)
    connection = sqlite3.connect(f"file:{sys.argv[1]}?mode=ro&immutable=1", uri=True)
    problems = []
    for query, wanted in QUERIES.items():
        found = connection.execute(query).fetchone()[0]
        if found != wanted:
            problems.append(f"{query}\n    gives {found}, not {wanted}")
    tables = {row[0] for row in connection.execute(
        "SELECT sql FROM sqlite_master WHERE type = 'table' AND name NOT LIKE 'sqlite_%'")}
    if tables != SCHEMA:
        problems.append(f"the tables differ: {tables ^ SCHEMA}")
    indexes = {row[0]: row[1] for row in connection.execute("SELECT name, sql FROM sqlite_master WHERE type = 'index'")}
    if set(indexes) != INDEXES:
        problems.append(f"the indexes differ: {set(indexes) ^ INDEXES}")
    for name, sql in indexes.items():
        table, column = re.search(r" ON (\w+) \((\w+)\)$", sql).groups()
        if name != f"{table.lower()}_{column}_idx":
            problems.append(f"{name} is not an index of its column: {sql}")
    stored = set(connection.execute("SELECT tbl, idx, stat FROM sqlite_stat1 WHERE idx IS NOT NULL"))
    if stored != set(expected_statistics(connection)):
        problems.append("the statistics are not those of the tables")
    if problems:
        sys.exit("check_calibration: " + "\ncheck_calibration: ".join(problems))


if __name__ == "__main__":
    main()
