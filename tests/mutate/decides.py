"""The files that decide what is cut and what is kept: solvers, stores, text rules and services. What draws is not here."""

FILES = [
    *(f"src/{room}/solver.cpp" for room in ("righttri", "oblique", "boltcircle", "sineplate", "polygon")),
    "src/boltcircle/report.cpp",
    *(f"src/geometry/{name}.cpp" for name in (
        "board", "connect", "crossings", "drawpass", "extend", "geofile", "pairlists", "record", "report", "rules",
        "store", "tangentcircles", "tangentmend", "tips", "unit", "unitchange", "viewport")),
    *(f"src/speedsfeeds/{name}.cpp" for name in (
        "calculation", "calculationchecks", "captions", "ranges", "record", "store")),
    "src/frame/checked.h",
    *(f"src/frame/{name}.cpp" for name in ("checked", "fault", "fontwidths", "rewrite", "text", "textfile")),
    *(f"src/services/{name}.cpp" for name in (
        "activebox", "degrees", "documents", "filters", "minutesdialog", "printing", "rounddialog", "rounding",
        "settings", "words")),
]
