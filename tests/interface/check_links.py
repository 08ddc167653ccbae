#!/usr/bin/env python3
"""Links between the documents lead somewhere, and every document can be reached: check_links.py root"""
import glob
import os
import re
import sys


def links(path):
    """The files that a document links to or shows, as paths."""
    with open(path, encoding="utf-8") as file:
        text = re.sub(r"^```.*?^```$", "", file.read(), flags=re.M | re.S)
    found = re.findall(r"\]\((?!\w+:)([^)#]+)", text)
    return {os.path.normpath(os.path.join(os.path.dirname(path), link)) for link in found}


def main():
    os.chdir(sys.argv[1])
    documents = ["README.md", "CHANGELOG.md"] + glob.glob("docs/*.md")
    faults = ["%s: there is no %s" % (path, link) for path in documents for link in sorted(links(path))
              if not os.path.exists(link)]
    linked = set().union(*map(links, documents))
    wanted = set(glob.glob("docs/*.md") + glob.glob("docs/*.svg") + glob.glob("docs/*.png"))
    faults += ["no document leads to %s" % path for path in sorted(wanted - linked)]
    with open("docs/Doxyfile", encoding="utf-8") as file:
        pages = set(re.findall(r"\S+\.md\b", file.read()))
    faults += ["the Doxyfile does not name %s" % path for path in sorted(set(documents) - {"README.md"} - pages)]
    for fault in faults:
        print(fault)
    sys.exit(1 if faults or len(wanted) < 10 else 0)


main()
