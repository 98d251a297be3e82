#!/usr/bin/env python3
"""Writes the calibration database CAFList5.db: the same bytes on every machine.

usage: make_database.py OUTPUT

The rows come from catalogue.py. SQLite leaves three traces of the machine in a file: its version, its count of changes,
and old data in the unused part of a page. Its statistics also differ a little between versions. This script sets all of
these to fixed values.
"""

import os
import sqlite3
import struct
import sys

import catalogue
from catalogue import Chance

VERSION = "500.4.0.1"
MODULES = 85935
FIRST_CALIBRATION = 20000
# Modules before this calibration have a lens number but no lens name.
FIRST_NAMED_CALIBRATION = 21484
# The calibrations that are delivered as files beside the database.
DELIVERED = ("C36841a_000", "C35830b_002")

SCHEMA = """
CREATE TABLE Metadata (id INTEGER PRIMARY KEY, key TEXT, value TEXT);
CREATE TABLE Module (id INTEGER PRIMARY KEY, cid TEXT, body INTEGER, name TEXT, fmin FLOAT, fmax FLOAT, amin FLOAT, \
amax FLOAT, lens_id TEXT, lens_name TEXT, bridge INTEGER, raw_only INTEGER, rgb_only INTEGER, lens_id_thumbnail INTEGER);
CREATE TABLE Maker (id INTEGER PRIMARY KEY, name TEXT);
CREATE TABLE Body (id INTEGER, maker INTEGER, model TEXT, identifier TEXT);
"""
INDEXES = {
    "Module": ("body", "cid", "raw_only", "rgb_only", "fmin", "fmax", "lens_id", "bridge"),
    "Body": ("id", "maker", "identifier"),
}
PAGE_SIZE = 4096
SQLITE_VERSION_WRITTEN = 3040001


def quotas(bodies):
    """How many modules each body gets: a handful for a fixed lens, the others share the rest evenly."""
    counts = {body.number: 2 + body.number % 7 for body in bodies if body.sensor == catalogue.FIXED}
    others = [body for body in bodies if body.number not in counts]
    share, extra = divmod(MODULES - sum(counts.values()), len(others))
    counts.update({body.number: share + (place < extra) for place, body in enumerate(others)})
    return counts


def lenses_of(body, pool, chance):
    """The lenses of one body; each body starts at another lens, so that every lens is used."""
    if body.sensor == catalogue.FIXED:
        lens = catalogue.fixed_lens(chance, zooms=not body.is_telephone)
        while True:
            yield lens
    start = chance.below(len(pool))
    while True:
        for place in range(len(pool)):
            yield pool[(start + place) % len(pool)]


def modules(bodies):
    """The rows of the table Module without their id."""
    chance = Chance(catalogue.SEED)
    counts = quotas(bodies)
    pools = {maker: catalogue.lens_pool(maker) for maker in range(1, len(catalogue.MAKERS) + 1)}
    calibration = FIRST_CALIBRATION
    for body in bodies:
        left = counts[body.number]
        for lens in lenses_of(body, pools[body.maker], chance):
            if left == 0:
                break
            number, calibration = calibration, calibration + 1
            revision = "b" if number % 5 == 0 else "a"
            bridge = int(chance.one_in(6))
            raw = int(chance.one_in(3))
            rgb = int(not raw and chance.one_in(4))
            twice = not raw and not rgb and chance.one_in(2)
            for index, (fmin, fmax) in enumerate(lens.ranges()):
                cid = f"C{number}{revision}_{index:03}"
                span = f"{fmin:g} mm" if fmin == fmax else f"{fmin:g}-{fmax:g} mm"
                wide = lens.wide if fmin == lens.fmin else round((lens.wide + lens.tele) / 2, 1)
                named = number >= FIRST_NAMED_CALIBRATION and lens.identifier != "NULL"
                title = f"{body.title}, {lens.name}," if named else body.title
                for raw_only, rgb_only in ((1, 0), (0, 1)) if twice else ((raw, rgb),):
                    if left == 0:
                        break
                    left -= 1
                    yield (cid, body.number, f"{title} {span}", fmin, fmax, wide, 22.0, lens.identifier,
                           lens.name if named else "NULL", bridge, raw_only, rgb_only, lens.thumbnail)


def statistics(connection):
    """Rows of sqlite_stat1: for each index the number of rows and how many share one key on average."""
    for table, columns in INDEXES.items():
        for column in columns:
            rows, keys = connection.execute(f"SELECT count(*), count(DISTINCT {column}) FROM {table}").fetchone()
            yield table, index_name(table, column), f"{rows} {(rows + keys - 1) // keys}"
    for table in ("Metadata", "Maker"):
        yield table, None, str(connection.execute(f"SELECT count(*) FROM {table}").fetchone()[0])


def index_name(table, column):
    return f"{table.lower()}_{column}_idx"


def fill(path):
    connection = sqlite3.connect(path, isolation_level=None)
    connection.executescript(f"PRAGMA page_size={PAGE_SIZE}; PRAGMA journal_mode=OFF; PRAGMA synchronous=OFF;"
                             "PRAGMA cache_size=-65536; PRAGMA encoding='UTF-8';"
                             "PRAGMA secure_delete=ON; BEGIN;" + SCHEMA)  # moved rows leave no old data
    bodies = catalogue.bodies()
    connection.execute("INSERT INTO Metadata VALUES (1, 'Version', ?)", (VERSION,))
    connection.executemany("INSERT INTO Maker VALUES (?, ?)", enumerate(catalogue.MAKERS, start=1))
    connection.executemany("INSERT INTO Body VALUES (?, ?, ?, ?)",
                           ((body.number, body.maker, body.model, body.identifier) for body in bodies))
    connection.executemany("INSERT INTO Module VALUES (NULL, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)", modules(bodies))
    for table, columns in INDEXES.items():
        for column in columns:
            connection.execute(f"CREATE INDEX {index_name(table, column)} ON {table} ({column})")
    connection.execute("COMMIT")
    connection.execute("ANALYZE sqlite_schema")  # makes the table without counting anything
    connection.execute("DROP TABLE IF EXISTS sqlite_stat4")
    connection.executemany("INSERT INTO sqlite_stat1 VALUES (?, ?, ?)", list(statistics(connection)))
    return connection


def check(connection):
    """Stops the build if the rows contradict each other."""
    def one(query, *values):
        return connection.execute(query, values).fetchone()[0]
    problems = [
        one("PRAGMA integrity_check") != "ok",
        one("PRAGMA freelist_count") != 0,
        one("SELECT count(*) FROM Module") != MODULES,
        one("SELECT count(*) FROM Module WHERE body NOT IN (SELECT id FROM Body)") != 0,
        one("SELECT count(*) FROM Body WHERE maker NOT IN (SELECT id FROM Maker)") != 0,
        any(one("SELECT count(*) FROM Module WHERE cid = ?", cid) == 0 for cid in DELIVERED),
    ]
    if any(problems):
        raise SystemExit(f"make_database.py: the catalogue is inconsistent: {problems}")


def erase_traces(path):
    with open(path, "r+b") as file:
        data = bytearray(file.read())
        struct.pack_into(">I", data, 24, 1)                       # file change counter
        struct.pack_into(">I", data, 40, 1)                       # schema cookie
        struct.pack_into(">II", data, 92, 1, SQLITE_VERSION_WRITTEN)  # version-valid-for, version
        for page in range(0, len(data), PAGE_SIZE):
            header = page + (100 if page == 0 else 0)
            if data[header] not in (2, 5, 10, 13):
                raise SystemExit(f"make_database.py: page {page // PAGE_SIZE + 1} is not part of a tree")
            cells, content = struct.unpack_from(">HH", data, header + 3)
            unused = header + (12 if data[header] in (2, 5) else 8) + 2 * cells
            data[unused:page + content] = bytes(page + content - unused)
        file.seek(0)
        file.write(data)


def main():
    if len(sys.argv) != 2:
        raise SystemExit(__doc__)
    output = sys.argv[1]
    part = output + ".part"
    if os.path.exists(part):
        os.remove(part)
    connection = fill(part)
    check(connection)
    connection.close()
    erase_traces(part)
    os.replace(part, output)


if __name__ == "__main__":
    main()
