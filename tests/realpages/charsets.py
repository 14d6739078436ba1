"""What reading and writing do to the national letters of a page, told a second time: letter by letter, with Python's codecs."""
import re

LETTERS = "ęĘóÓąĄśŚłŁżŻźŹćĆńŃ"
META = re.compile(rb"<meta\s[^>]*>")


def codec_of(page):
    """The codec of the letters in the file; None where nothing is converted."""
    for tag in META.findall(page.lower()):
        if re.search(rb"""\shttp-equiv=["']?content-type""", tag):
            found = re.search(rb"charset=([^\s\"'>]*)", tag)
            name = found.group(1).decode("ascii", "replace") if found else ""
            if name == "utf-8":
                return name
            # All of one family count as the set that is known of it.
            return next((codec for family, codec in (("iso-8859-", "iso8859-2"), ("windows-125", "cp1250")) if name.startswith(family)), None)
    return None


def exchanged(text, pairs):
    """Each of the sequences on the left by that on the right, in one go."""
    if not pairs:
        return text
    return re.sub(b"|".join(map(re.escape, pairs)), lambda match: pairs[match.group()], text)


def symbol(match):
    number = int(match.group(1))
    return bytes([number]) if 0 < number < 256 else match.group()


def read(page):
    """The page as it is edited, and whether symbols stood for characters."""
    codec = codec_of(page)
    if codec is None:
        return page, False
    text = page if codec == "utf-8" else re.sub(rb"&#(\d{1,3})", symbol, page)
    return exchanged(text, {letter.encode(codec): letter.encode("cp1250") for letter in LETTERS}), text != page


def written(text, symbols):
    """The bytes of an edited page."""
    codec = codec_of(text)
    if codec is None:
        return text
    page = exchanged(text, {letter.encode("cp1250"): letter.encode(codec) for letter in LETTERS})
    if symbols and codec != "utf-8":
        page = exchanged(page, {letter.encode(codec): b"&#%d" % letter.encode(codec)[0] for letter in LETTERS})
    return page
