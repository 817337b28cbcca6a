"""Whether the list of properties of the macOS bundle can be read, and what is saved can be opened again:
bundle_plist.py Info.plist FileFormats.cpp"""
import plistlib
import re
import sys
from pathlib import Path

with open(sys.argv[1], "rb") as file:
    properties = plistlib.load(file)
assert re.fullmatch(r"\d+\.\d+\.\d+", properties["CFBundleShortVersionString"]), properties
kinds = properties["CFBundleDocumentTypes"]
opened = [name for kind in kinds for name in kind["LSItemContentTypes"]]
assert len(opened) == len(set(opened)), "a type stands there twice"
editable = {name for kind in kinds if kind["CFBundleTypeRole"] == "Editor" for name in kind["LSItemContentTypes"]}
rows = Path(sys.argv[2]).read_text().split("{.format = ")[1:]
saved = {re.search(r'\.typeIdentifier = "([^"]+)"', row).group(1) for row in rows if ".exportName" in row}
assert len(saved) >= 8 and saved == editable, saved ^ editable
