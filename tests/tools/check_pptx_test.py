#!/usr/bin/env python3
"""check-pptx finds each fault planted in a clean deck, and only what a deck adds to its template.

usage: check_pptx_test.py CLEAN.pptx
"""

import os
import warnings
import re
import subprocess
import sys
import tempfile
import zipfile

CHECKER = os.path.join(os.path.dirname(os.path.realpath(__file__)), "check-pptx")


def rewrite(source, target, change):
    """A copy of source in which change(name, bytes) -> [(name, bytes), ...] replaces each entry."""
    with zipfile.ZipFile(source) as zin, zipfile.ZipFile(target, "w", zipfile.ZIP_DEFLATED) as zout:
        for info in zin.infolist():
            for name, data in change(info.filename, zin.read(info.filename)):
                zout.writestr(name, data)


def sub(part, pattern, replacement, count=1):
    def change(name, data):
        if name == part:
            new = re.sub(pattern.encode(), replacement.encode(), data, count=count)
            assert new != data, "%s: %s not found" % (part, pattern)
            data = new
        return [(name, data)]

    return change


def run(*args):
    r = subprocess.run([sys.executable, CHECKER, *args], capture_output=True, text=True)
    return r.returncode, r.stdout


def main(clean):
    warnings.simplefilter("ignore")  # zipfile warns of the name it is asked to store twice
    slide = "ppt/slides/slide1.xml"
    with zipfile.ZipFile(clean) as z:
        names = z.namelist()
        assert slide in names, "the clean deck needs a slide"
        image = next((n for n in names if n.startswith("ppt/media/") and n.endswith(".png")), None)
    status, out = run(clean)
    assert status == 0 and out.endswith(" 0 problems\n"), out

    faults = {
        "marker attribute": (sub(slide, r"<p:cNvPr ", '<p:cNvPr data-uid="7" '), "attribute 'data-uid'"),
        "unknown element": (sub(slide, r"</p:cSld>", "<p:bogus/></p:cSld>"), "unknown element bogus"),
        "shape id twice": (sub(slide, r'<p:cNvPr id="\d+"', '<p:cNvPr id="1"', count=0), "shape id 1 used"),
        "dangling r:id": (sub(slide, r"</p:cSld>", '</p:cSld><p:custDataLst><p:tags r:id="rId99"/></p:custDataLst>'),
                          'r:id="rId99" names no relationship'),
        "relationship id twice": (sub("ppt/slides/_rels/slide1.xml.rels", r'Id="rId\d+"', 'Id="rId1"', count=0),
                                  "relationship id rId1 used twice"),
        "missing target": (sub("ppt/slides/_rels/slide1.xml.rels", r'Target="[^"]*"', 'Target="../gone.xml"'),
                           "targets a missing part /ppt/gone.xml"),
        "slide id range": (sub("ppt/presentation.xml", r'<p:sldId id="\d+"', '<p:sldId id="12"'),
                           "slide id 12 outside"),
        "master id range": (sub("ppt/presentation.xml", r'<p:sldMasterId id="\d+"', '<p:sldMasterId id="300"'),
                            "master or layout id 300 below"),
        "override without part": (sub("[Content_Types].xml", r"</Types>",
                                      '<Override PartName="/ppt/none.xml" ContentType="application/xml"/></Types>'),
                                   "/ppt/none.xml: content type override names a missing part"),
        "part without type": (lambda n, d: [(n, d)] + ([("ppt/extra.qqq", b"x")] if n == slide else []),
                              "/ppt/extra.qqq: part without a content type"),
        "zip name twice": (lambda n, d: [(n, d)] * (2 if n == slide else 1), "zip name stored 2 times"),
        "names equal but for case": (lambda n, d: [(n, d)] + ([(n.upper(), b"x")] if n == slide else []),
                                     "zip names equal but for case"),
    }
    if image:
        faults["image bytes"] = (lambda n, d: [(n, b"\xff\xd8\xff\xe0" + d[4:] if n == image else d)],
                                 "content type image/png but the bytes are image/jpeg")
    failed = []
    with tempfile.TemporaryDirectory() as tmp:
        for what, (change, expected) in faults.items():
            deck = os.path.join(tmp, "faulty.pptx")
            rewrite(clean, deck, change)
            status, out = run(deck)
            if status != 1 or expected not in out:
                failed.append("%s: expected '%s', got:\n%s" % (what, expected, out))
            # Against itself as the template, the same fault is not the deck's.
            status, out = run("--template", deck, deck)
            if status != 0:
                failed.append("%s: reported against its own template:\n%s" % (what, out))
    for text in failed:
        print("FAILED " + text)
    print("%d passed, %d failed" % (2 * len(faults) - len(failed), len(failed)))
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
