#!/usr/bin/env python3
"""Draws one line of many rows from a CSV file, a pipe, an SQLite file and a PostgreSQL of its own, holds the
pictures against each other, and prints what each took.

    python3 tools/measure_large_data.py PROGRAMS [ROWS]    PROGRAMS: the folder of millichart and parse-by-hand

Rows are a walk of three decimals. The folder with all of it, in the present one, is removed at the end; so is the
server. Where PostgreSQL or its ODBC driver is missing, its lines are left out.
"""

import glob
import os
import random
import shutil
import sqlite3
import subprocess
import sys
import tempfile
import time

COUNT = "select count(*), min(v), max(v) from points"


def run(words, stdin=None):
    """Wall clock in seconds, that of the processor, and the most memory in MB."""
    begin = time.monotonic()
    child = subprocess.Popen(words, stdin=stdin)
    _, status, usage = os.wait4(child.pid, 0)
    if status != 0:
        sys.exit(f"failed: {' '.join(words)}")
    return time.monotonic() - begin, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024


def say(what, cost):
    wall, processor, memory = cost
    print(f"{what:<44} {wall:8.2f} s {processor:8.2f} s {memory:7.0f} MB", flush=True)


def best(words, runs=3):
    return min((run(words) for _ in range(runs)), key=lambda cost: cost[0])


def make_csv(name, rows):
    step = random.Random(7)
    value = 0
    with open(name, "w", encoding="ascii") as out:
        out.write("t,v\n")
        for first in range(0, rows, 100000):
            lines = []
            for t in range(first, min(first + 100000, rows)):
                value += step.randrange(-1000, 1001)
                lines.append(f"{t},{value / 1000}\n")
            out.writelines(lines)


def rows_of(name):
    with open(name, encoding="ascii") as table:
        next(table)
        for line in table:
            t, v = line.split(",")
            yield int(t), float(v)


def same(a, b):
    with open(a, "rb") as one, open(b, "rb") as other:
        if one.read() != other.read():
            sys.exit(f"{a} and {b} are not the same picture")
    print(f"{b} is {a}, byte for byte", flush=True)


class Server:
    """A PostgreSQL on a socket in a folder of its own."""

    def __init__(self):
        programs = sorted(glob.glob("/usr/lib/postgresql/*/bin"))
        self.programs = programs[-1] if programs else None
        driver = subprocess.run(["odbcinst", "-q", "-d", "-n", "PostgreSQL Unicode"], capture_output=True, check=False)
        if self.programs is None or driver.returncode != 0:
            self.programs = None
            return
        self.home = tempfile.mkdtemp(prefix="millichart-server-", dir="/tmp")
        self.user = ["runuser", "-u", "postgres", "--"] if os.geteuid() == 0 else []
        if self.user:
            shutil.chown(self.home, "postgres")
        os.chmod(self.home, 0o755)
        self.call("initdb", "-D", f"{self.home}/data", "-A", "trust", "-U", "postgres", "--no-sync", "-E", "UTF8")
        self.call("pg_ctl", "-D", f"{self.home}/data", "-w", "-l", f"{self.home}/log", "-o",
                  f"-c listen_addresses= -c fsync=off -c unix_socket_directories={self.home}", "start")

    def call(self, program, *arguments):
        subprocess.run([*self.user, f"{self.programs}/{program}", *arguments], check=True, cwd="/tmp",
                       stdout=subprocess.DEVNULL, stdin=subprocess.DEVNULL)

    def psql(self, *arguments):
        return [f"{self.programs}/psql", "-h", self.home, "-U", "postgres", "-q", "-o", "/dev/null", *arguments]

    def end(self):
        self.call("pg_ctl", "-D", f"{self.home}/data", "-m", "immediate", "stop")
        shutil.rmtree(self.home)


def measure(programs, rows):
    draw = [f"{programs}/millichart", "draw", "--kind", "line", "--dpi", "200"]
    points = ["--table", "points", "--time", "t", "--value", "v"]
    make_csv("points.csv", rows)
    print(f"{rows} rows, {os.path.getsize('points.csv') / 1e6:.0f} MB")
    print(f"{'':<44} {'clock':>10} {'processor':>10} {'memory':>10}")
    with open("bare.csv", "w", encoding="ascii") as out:
        subprocess.run(["tail", "-n", "+2", "points.csv"], stdout=out, check=True)
    say("read and parsed by hand", best([f"{programs}/parse-by-hand", "bare.csv"], 2))
    say("CSV, row by row", best([*draw, "--stream", "points.csv", "-o", "stream.png"], 2))
    with open("points.csv", "rb") as table:
        say("CSV by a pipe", run([*draw, "--stream", "-", "-o", "pipe.png"], table))
    if rows <= 20_000_000:
        say("CSV, held", run([*draw, "--no-stream", "points.csv", "-o", "held.png"]))
        same("held.png", "stream.png")
    if rows > 20_000_000:
        return
    base = sqlite3.connect("points.db")
    base.execute("create table points (t integer, v double precision)")
    base.executemany("insert into points values (?, ?)", rows_of("points.csv"))
    base.commit()
    base.close()
    ask = f"import sqlite3; sqlite3.connect('points.db').execute('{COUNT}').fetchall()"
    say("SQLite, count, min and max", best([sys.executable, "-c", ask]))
    say("SQLite, drawn", best([*draw, "sqlite:points.db", *points, "-o", "sqlite.png"]))
    same("stream.png", "sqlite.png")
    server = Server()
    if server.programs is None:
        return
    try:
        run(server.psql("-c", "create table points (t integer, v double precision)", "-c",
                        r"\copy points from 'bare.csv' with (format csv)", "-c", "vacuum analyze points"))
        say("PostgreSQL, count, min and max", best(server.psql("-c", COUNT)))
        source = f"odbc:Driver=PostgreSQL Unicode;Server={server.home};Database=postgres;UID=postgres"
        say("PostgreSQL, drawn", best([*draw, source, *points, "-o", "postgresql.png"]))
        same("stream.png", "postgresql.png")
    finally:
        server.end()


def main():
    programs = os.path.abspath(sys.argv[1])
    folder = tempfile.mkdtemp(prefix="large-data-", dir=".")
    try:
        os.chdir(folder)
        measure(programs, int(sys.argv[2]) if len(sys.argv) > 2 else 10_000_000)
    finally:
        os.chdir("..")
        shutil.rmtree(folder)


if __name__ == "__main__":
    main()
