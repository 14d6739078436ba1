"""Fetches the pages: Debian documentation packages, unpacked into a folder without being installed."""
import pathlib
import subprocess

# Package, number of pages taken from it, what it is there for.
PACKAGES = [
    ("aptitude-doc-cs", 5, "tables, Czech in UTF-8"),
    ("c++-annotations-html", 5, "frames, long chapters"),
    ("debian-edu-doc-legacy-pl", 1, "Polish in UTF-8"),
    ("debian-faq", 4, "tables without <html> at the start"),
    ("exim4-doc-html", 3, "scripts, numbered listings"),
    ("jython-doc", 4, "an index of 4.6 MB, definition lists"),
    ("libcommons-io-java-doc", 4, "scripts, ISO-8859-1"),
    ("libhdf5-doc", 6, "inner frames, nested tables, a word processor's markup"),
    ("libxml2-doc", 5, "tables for the layout"),
    ("lilypond-doc-html-hu", 5, "Hungarian in UTF-8"),
    ("maint-guide", 3, "ordered lists, notes"),
]
SMALLEST, LARGEST = 5_000, 5_000_000


def run(arguments, folder):
    done = subprocess.run(arguments, cwd=folder, stdin=subprocess.DEVNULL, capture_output=True, text=True)
    return done.returncode == 0


def unpack(package, cache, options):
    """The folder of an unpacked package, or None when it cannot be had."""
    folder = cache / "trees" / package
    if folder.is_dir():
        return folder
    archives = cache / "archives"
    archives.mkdir(parents=True, exist_ok=True)
    folder.parent.mkdir(exist_ok=True)
    if not any(archives.glob(f"{package}_*.deb")) and not run(["apt-get", *options, "download", package], archives):
        return None
    fresh = folder.with_name(package + ".part")
    archive = next(archives.glob(f"{package}_*.deb"), None)
    if archive is None or not run(["dpkg-deb", "-x", str(archive), str(fresh)], archives):
        return None
    return fresh.rename(folder)


def own_lists(cache):
    """Fetches package lists into the cache: a machine may have none, and they can be read and written by any user there."""
    (cache / "lists" / "partial").mkdir(parents=True, exist_ok=True)
    options = ["-o", f"Dir::State::Lists={cache / 'lists'}", "-o", "Dir::Cache::pkgcache=", "-o", "Dir::Cache::srcpkgcache="]
    return options if run(["apt-get", *options, "update"], cache) else []


def pages_of(folder, count):
    """The largest page of a package and others of all sizes."""
    pages = [path for path in folder.rglob("*.htm*") if path.suffix in (".htm", ".html") and path.is_file() and not path.is_symlink()]
    pages = sorted((path for path in pages if SMALLEST <= path.stat().st_size <= LARGEST), key=lambda path: (-path.stat().st_size, str(path)))
    step = max(1, len(pages) // count)
    return pages[::step][:count]


def fetch(cache):
    """All pages that could be had, in a fixed order."""
    pages, options = [], None
    for package, count, _ in PACKAGES:
        folder = unpack(package, cache, options or [])
        if folder is None and options is None:
            options = own_lists(cache)
            folder = unpack(package, cache, options) if options else None
        if folder is not None:
            pages += pages_of(folder, count)
    return pages
