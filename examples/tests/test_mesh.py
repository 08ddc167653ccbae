#!/usr/bin/env python3
"""Runs the program mesh on files made here: python3 test_mesh.py PROGRAM [test...]"""
import math
import os
import pty
import re
import struct
import subprocess
import sys
import tempfile
import unittest
import zlib
from collections import Counter

PROGRAM = ""


class Case(unittest.TestCase):
    def setUp(self):
        self.directory = tempfile.TemporaryDirectory()
        self.addCleanup(self.directory.cleanup)

    def path(self, name):
        return os.path.join(self.directory.name, name)

    def run_mesh(self, *arguments):
        return subprocess.run([PROGRAM, *arguments], capture_output=True, text=True, cwd=self.directory.name, timeout=300)

    def run_on(self, text, *arguments, name="model.obj"):
        with open(self.path(name), "wb") as file:
            file.write(text if isinstance(text, bytes) else text.encode())
        return self.run_mesh("-o", "picture.png", *arguments, name)


class Output:
    """The numbers that the program prints."""

    def __init__(self, text):
        def numbers(pattern):
            found = re.search(pattern, text)
            assert found, f"'{pattern}' not in\n{text}"
            return [float(group) for group in found.groups()]

        number = r"(-?[\d.]+(?:e[-+]\d+)?)"
        self.vertices, self.duplicates, self.faces, self.triangles = numbers(
            r": (\d+) points \((\d+) of them duplicates\), (\d+) faces, (\d+) triangles")
        self.neighbours = numbers(f"neighbours: [a-z ]+, {number} on average")[0]
        self.quadrics, self.cholesky, self.qr, self.without = numbers(
            r"fits: (\d+) quadrics, (\d+) by Cholesky, (\d+) by QR; (\d+) points without")
        self.difference, self.closed_difference, self.thread_difference, self.alone = numbers(
            f"radius {number} .*, {number} .*, {number} .*; {number} points have")
        self.curvature = None
        if self.quadrics:
            self.curvature = numbers(f"mean curvature: {number} least, {number} at 5 %, {number} median, "
                                     f"{number} at 95 %, {number} greatest")
        self.equal = text.count("results equal")


def obj(points, faces):
    return "".join("v %.17g %.17g %.17g\n" % tuple(p) for p in points) + "".join(
        "f " + " ".join(str(i + 1) for i in f) + "\n" for f in faces)


def xyz(points):
    return "".join("%.17g %.17g %.17g\n" % tuple(p) for p in points)


def ply_header(kind, vertices, faces=None, real="double"):
    text = f"ply\nformat {kind} 1.0\ncomment of a test\nelement vertex {vertices}\n"
    text += "".join(f"property {real} {axis}\n" for axis in "xyz")
    if faces is not None:
        text += f"element face {faces}\nproperty list uchar int vertex_indices\n"
    return text + "end_header\n"


def ply(points, faces=None, kind="ascii"):
    """With None for faces the header does not speak of them."""
    header = ply_header(kind, len(points), None if faces is None else len(faces))
    faces = faces or []
    if kind == "ascii":
        return header + xyz(points) + "".join(" ".join(map(str, [len(f), *f])) + "\n" for f in faces)
    order = "<" if "little" in kind else ">"
    return (header.encode() + b"".join(struct.pack(order + "3d", *p) for p in points) +
            b"".join(struct.pack(f"{order}B{len(f)}i", len(f), *f) for f in faces))


def stl(points, faces, text=False):
    corners = [[points[i] for i in face] for face in faces]
    if text:
        return "solid a b\n" + "".join(
            "facet normal 0 0 1\nouter loop\n" + "".join("vertex %.9g %.9g %.9g\n" % tuple(p) for p in c) +
            "endloop\nendfacet\n" for c in corners) + "endsolid a b\n"
    return b"solid".ljust(80) + struct.pack("<I", len(faces)) + b"".join(
        struct.pack("<12f", 0, 0, 1, *c[0], *c[1], *c[2]) + b"\0\0" for c in corners)


def chunk(kind, *parts):
    body = b"".join(parts)
    return struct.pack("<HI", kind, len(body) + 6) + body


def three_ds(*meshes):
    """Each mesh an object."""
    objects = [chunk(0x4000, b"name\0", chunk(
        0x4100, chunk(0x4110, struct.pack("<H", len(points)), *(struct.pack("<3f", *p) for p in points)),
        chunk(0x4120, struct.pack("<H", len(faces)), *(struct.pack("<4H", *f, 7) for f in faces),
              chunk(0x4150, b"\0" * 4 * len(faces))))) for points, faces in meshes]
    return chunk(0x4d4d, chunk(0x0002, b"\3\0\0\0"), chunk(0x3d3d, *objects), chunk(0xb000, b"12345"))


def closed_grid(rows, columns, point, flip=False):
    """A torus-like grid of quads."""
    points = [point(2 * math.pi * i / rows, 2 * math.pi * j / columns) for i in range(rows) for j in range(columns)]
    faces = []
    for i in range(rows):
        for j in range(columns):
            corner = [i * columns + j, (i + 1) % rows * columns + j,
                      (i + 1) % rows * columns + (j + 1) % columns, i * columns + (j + 1) % columns]
            faces.append(corner[::-1] if flip else corner)
    return points, faces


def sphere(radius, levels=4, centre=(0, 0, 0)):
    """An icosahedron, its faces divided in four `levels` times, on the sphere; normals outward."""
    g = (1 + math.sqrt(5)) / 2
    points = [(0, s, t * g) for s in (-1, 1) for t in (-1, 1)]
    points = points + [(y, z, x) for x, y, z in points] + [(z, x, y) for x, y, z in points]
    faces = []
    near = lambda a, b: abs(sum((x - y) ** 2 for x, y in zip(points[a], points[b])) - 4) < 1e-9
    for a in range(12):
        for b in range(a):
            for c in range(b):
                if near(a, b) and near(b, c) and near(a, c):
                    (ax, ay, az), (bx, by, bz), (cx, cy, cz) = points[a], points[b], points[c]
                    volume = ax * (by * cz - bz * cy) + ay * (bz * cx - bx * cz) + az * (bx * cy - by * cx)
                    faces.append((a, b, c) if volume > 0 else (a, c, b))
    for _ in range(levels):
        middle, divided = {}, []

        def half(i, j):
            key = min(i, j), max(i, j)
            if key not in middle:
                middle[key] = len(points)
                points.append(tuple((x + y) / 2 for x, y in zip(points[i], points[j])))
            return middle[key]

        for a, b, c in faces:
            d, e, f = half(a, b), half(b, c), half(c, a)
            divided += [(a, d, f), (d, b, e), (f, e, c), (d, e, f)]
        faces = divided
    length = lambda p: math.sqrt(sum(x * x for x in p))
    return [tuple(m + radius * x / length(p) for x, m in zip(p, centre)) for p in points], faces


OCTAHEDRON = [(1, 0, 0), (-1, 0, 0), (0, 1, 0), (0, -1, 0), (0, 0, 1), (0, 0, -1)]
OCTAHEDRON_FACES = [(0, 2, 4), (2, 1, 4), (1, 3, 4), (3, 0, 4), (2, 0, 5), (1, 2, 5), (3, 1, 5), (0, 3, 5)]


def rotated(points):
    """Turned, so that no axis is special."""
    result = []
    for x, y, z in points:
        x, y = 0.8 * x - 0.6 * y, 0.6 * x + 0.8 * y
        y, z = (5 * y - 12 * z) / 13, (12 * y + 5 * z) / 13
        x, z = (15 * x + 8 * z) / 17, (-8 * x + 15 * z) / 17
        result.append((x, y, z))
    return result


def bent(points, size):
    """No point keeps its place."""
    return [tuple(c + size * math.sin(7 * i + 3 * j * j + 1) for j, c in enumerate(p)) for i, p in enumerate(points)]


def joined(*models):
    points, faces = [], []
    for p, f in models:
        faces += [[i + len(points) for i in face] for face in f]
        points += p
    return points, faces


def undo_filter(kind, row, previous):
    """A PNG row of 3 byte pixels, in place."""
    assert kind <= 4
    if kind == 2:
        row[:] = [(x + b) & 255 for x, b in zip(row, previous)]
    elif kind != 0:
        for channel in range(3):
            a = c = 0
            for i in range(channel, len(row), 3):
                b = previous[i]
                if kind == 1:
                    predicted = a
                elif kind == 3:
                    predicted = (a + b) >> 1
                else:
                    to_a, to_b, to_c = abs(b - c), abs(a - c), abs(a + b - c - c)
                    predicted = a if to_a <= to_b and to_a <= to_c else b if to_b <= to_c else c
                row[i] = a = (row[i] + predicted) & 255
                c = b


def read_png(path):
    """Width, height and rows of (r, g, b) of an 8 bit RGB file, with all check sums tested."""
    with open(path, "rb") as file:
        data = file.read()
    assert data[:8] == b"\x89PNG\r\n\x1a\n"
    at, packed, kinds = 8, b"", []
    while at < len(data):
        size, kind = struct.unpack(">I4s", data[at:at + 8])
        body = data[at + 8:at + 8 + size]
        assert zlib.crc32(kind + body) == struct.unpack(">I", data[at + 8 + size:at + 12 + size])[0]
        kinds.append(kind)
        if kind == b"IHDR":
            width, height, depth, colour, _, _, interlace = struct.unpack(">IIBBBBB", body)
            assert (depth, colour, interlace) == (8, 2, 0)
        elif kind == b"IDAT":
            packed += body
        at += 12 + size
    assert kinds[0] == b"IHDR" and kinds[-1] == b"IEND"
    raw, stride, previous, rows = zlib.decompress(packed), 3 * width, bytearray(3 * width), []
    assert len(raw) == height * (stride + 1)
    for y in range(height):
        kind, row = raw[y * (stride + 1)], bytearray(raw[y * (stride + 1) + 1:(y + 1) * (stride + 1)])
        undo_filter(kind, row, previous)
        rows.append(list(zip(row[0::3], row[1::3], row[2::3])))
        previous = row
    return width, height, rows


class Surfaces(Case):
    def fit(self, model, *arguments):
        text = model if isinstance(model, (str, bytes)) else obj(*model)
        result = self.run_on(text, *arguments)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        output = Output(result.stdout)
        self.assertEqual(output.equal, 1, result.stdout)
        self.assertLess(output.difference, 1e-6)
        self.assertLess(output.thread_difference, 1e-9)
        return output

    def test_sphere(self):
        for radius in (2, 1e-3, 4e5):
            output = self.fit(sphere(radius, 4, (radius, 3 * radius, 0)))
            self.assertEqual((output.vertices, output.triangles), (2562, 5120))
            self.assertEqual((output.cholesky, output.qr, output.without), (2562, 0, 0))
            for value in output.curvature:
                self.assertAlmostEqual(value * radius, 1, delta=0.01)

    def test_sphere_inside_out(self):
        points, faces = sphere(2)
        output = self.fit((points, [face[::-1] for face in faces]))
        for value in output.curvature:
            self.assertAlmostEqual(value, -0.5, delta=0.005)

    def test_torus(self):
        place = lambda u, v: ((3 + math.cos(v)) * math.cos(u), (3 + math.cos(v)) * math.sin(u), math.sin(v))
        output = self.fit(closed_grid(240, 80, place))
        self.assertEqual((output.faces, output.triangles, output.cholesky), (19200, 38400, 19200))
        self.assertAlmostEqual(output.curvature[0], 1 / 4, delta=0.005)
        self.assertAlmostEqual(output.curvature[4], 5 / 8, delta=0.005)

    def test_plane(self):
        points = [(i, j, 0.3 * i - 0.2 * j) for i in range(12) for j in range(9)]
        faces = [(9 * i + j, 9 * i + j + 9, 9 * i + j + 10, 9 * i + j + 1) for i in range(11) for j in range(8)]
        output = self.fit((points, faces))
        self.assertEqual(output.vertices, 108)
        self.assertEqual(output.triangles, 2 * output.faces)
        self.assertLess(max(map(abs, output.curvature)), 1e-12)
        self.assertEqual(output.quadrics + output.without, 108)
        self.assertGreater(output.quadrics, 100)

    def test_cube(self):
        points = [(x, y, z) for x in (0, 1) for y in (0, 1) for z in (0, 1)]
        faces = [(0, 1, 3, 2), (4, 6, 7, 5), (0, 4, 5, 1), (2, 3, 7, 6), (0, 2, 6, 4), (1, 5, 7, 3)]
        output = self.fit((points, faces))
        self.assertEqual((output.vertices, output.faces, output.triangles), (8, 6, 12))
        self.assertEqual(output.quadrics, 8)
        # Along a diagonal, the others stand as a hexagon; the mean height of its corners is that of both ends.
        self.assertLess(max(map(abs, output.curvature)), 1e-12)

    def test_duplicates(self):
        points, faces = sphere(2, 3)
        separate = [points[i] for face in faces for i in face]
        output = self.fit((separate, [(3 * i, 3 * i + 1, 3 * i + 2) for i in range(len(faces))]))
        self.assertEqual((output.vertices, output.duplicates, output.cholesky), (3840, 3840 - 642, 642))
        self.assertAlmostEqual(output.curvature[2], 0.5, delta=0.02)

    def test_singular(self):
        """Six points on two conics have no quadric; a little beside them QR finds it."""
        for points, expected in ((OCTAHEDRON, (0, 0, 6)), (rotated(OCTAHEDRON), (0, 0, 6)),
                                 (bent(rotated(OCTAHEDRON), 1e-3), (0, 6, 0)), (bent(OCTAHEDRON, 0.1), (6, 0, 0))):
            output = self.fit((points, OCTAHEDRON_FACES))
            self.assertEqual((output.cholesky, output.qr, output.without), expected)

    def test_singular_among_others(self):
        """The systems that fail lie in the batch at many places, side by side and alone."""
        shift = lambda points, n: [(x + 3 * (n % 20), y + 3 * (n // 20), z) for x, y, z in points]
        good, bad = bent(OCTAHEDRON, 0.1), OCTAHEDRON
        pattern = [n % 7 in (1, 2, 5) or 100 < n < 140 or n == 0 for n in range(400)]
        models = [(shift(bad if fails else good, n), OCTAHEDRON_FACES) for n, fails in enumerate(pattern)]
        output = self.fit(joined(*models, sphere(2, 3, (-9, 0, 0))))
        self.assertEqual(output.without, 6 * sum(pattern))
        self.assertEqual(output.cholesky, 6 * (400 - sum(pattern)) + 642)

    def test_odd_meshes(self):
        points, faces = sphere(1, 2)
        lone = self.fit((points + [(5, 5, 5)], faces))  # a vertex of no face
        self.assertEqual((lone.cholesky, lone.without), (162, 1))
        fins = self.fit((points, faces + [(0, 1, 2), (0, 1, 50), (0, 1, 60), (7, 7, 9)]))  # edges of many faces
        self.assertEqual((fins.quadrics, fins.triangles), (162, len(faces) + 3))
        back = self.fit((points, faces + [face[::-1] for face in faces]))  # each face twice, back to back
        self.assertEqual(back.quadrics, 162)
        many, small = sphere(1, 4)
        half = self.fit((many, [face for face in small if all(many[i][2] > -0.1 for i in face)]))  # with a boundary
        self.assertAlmostEqual(half.curvature[2], 1, delta=0.01)
        self.assertAlmostEqual(half.curvature[0], half.curvature[4], delta=0.1)
        single = self.fit(obj([(0, 0, 0), (1, 0, 0), (0, 1, 0)], [(0, 1, 2)]))
        self.assertEqual((single.quadrics, single.without), (0, 3))
        flat = self.fit(obj([(0, 0, 0), (1, 0, 0), (2, 0, 0), (3, 0, 0)], [(0, 1, 2, 3)]))  # no area
        self.assertEqual(flat.without, 4)
        point = self.fit("v 1 1 1\nv 1 1 1\nv 1 1 1\nf 1 2 3\n")
        self.assertEqual((point.duplicates, point.triangles, point.without), (2, 0, 1))
        far = self.fit((([(1e300 * x, 1e300 * y, 1e300 * z) for x, y, z in points]), faces))
        self.assertEqual(far.cholesky, 162)
        spokes = 5000
        ring = [(math.cos(2 * math.pi * i / spokes), math.sin(2 * math.pi * i / spokes), 0) for i in range(spokes)]
        fan = self.fit((ring + [(0, 0, 1)], [(i, (i + 1) % spokes, spokes) for i in range(spokes)]))
        self.assertEqual(fan.vertices, spokes + 1)

    def test_ways_of_writing(self):
        points, faces = sphere(2, 2)
        expected = self.fit((points, faces)).curvature
        vertices, n = obj(points, []), len(points)
        forms = {
            "v/vt/vn": "vt 0 0\nvn 0 0 1\n" + "".join("f %d/1/1 %d/1/1 %d/-1/-1\n" % (a + 1, b + 1, c + 1) for a, b, c in faces),
            "v//vn": "vn 0 0 1\n" + "".join("f %d//1 %d//1 %d//-1\n" % (a + 1, b + 1, c + 1) for a, b, c in faces),
            "v/vt": "vt 0 0\n" + "".join("f %d/1 %d/1 %d/1\n" % (a + 1, b + 1, c + 1) for a, b, c in faces),
            "negative": "".join("f %d %d %d\n" % (a - n, b - n, c - n) for a, b, c in faces),
            "other statements": "o thing\ng a b\ns 1\nusemtl m\n\n# f 1 2\n" + obj([], faces).replace("\n", " # c\n"),
            "line ends": obj([], faces).replace("\n", "\r\n").replace("f ", " \tf  "),
            "continued": obj([], faces).replace(" ", " \\\n", 1),
        }
        for name, text in forms.items():
            with self.subTest(name):
                self.assertEqual(self.fit(vertices + text).curvature, expected)
        with self.subTest("faces first, colours, exponents, no last line end"):
            text = obj([], faces) + "".join("v %.17e +%.17g %.17g 0.5 0.5 1\n" % (x, y, z) if y >= 0 else
                                            "v %.17e %.17g %.17g 1.0\n" % (x, y, z) for x, y, z in points)
            self.assertEqual(self.fit(text[:-1]).curvature, expected)


class Formats(Case):
    def read(self, name, data, *arguments):
        result = self.run_on(data, *arguments, name=name)
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        return Output(result.stdout)

    def test_faces(self):
        """The same sphere in each format that has faces."""
        points, faces = sphere(2, 3)
        points = [tuple(struct.unpack("f", struct.pack("f", x))[0] for x in p) for p in points]
        expected = self.read("m.obj", obj(points, faces))
        for name, data in (("m.ply", ply(points, faces)), ("m.PLY", ply(points, faces, "binary_little_endian")),
                           ("big.ply", ply(points, faces, "binary_big_endian")), ("m.3ds", three_ds((points, faces))),
                           ("m.stl", stl(points, faces)), ("text.stl", stl(points, faces, True))):
            with self.subTest(name):
                output = self.read(name, data)
                self.assertEqual((output.faces, output.triangles, output.cholesky), (1280, 1280, 642))
                self.assertEqual(output.vertices - output.duplicates, 642)
                for value, other in zip(output.curvature, expected.curvature):
                    self.assertAlmostEqual(value, other, delta=2e-6)

    def test_no_faces(self):
        """The same points in each format: normals point outward on all of them, and no neighbours depend on faces."""
        points, _ = sphere(2, 4)
        expected = self.read("m.obj", obj(points, []))
        self.assertEqual((expected.faces, expected.neighbours, expected.cholesky), (0, 20, 2562))
        for value in expected.curvature:
            self.assertAlmostEqual(value, 0.5, delta=0.01)
        binary = ply(points, [], "binary_little_endian")
        for name, data in (("m.xyz", xyz(points)), ("m.ply", ply(points)), ("no.ply", ply(points, [])),
                           ("b.ply", ply(points, None, "binary_little_endian")), ("e.ply", binary),
                           ("more.xyz", "# x y z and more\n\n" + "".join("%.17g\t%.17g %.17g 0 1 -2.5e-3 # c\r\n" % p
                                                                      for p in points))):
            with self.subTest(name):
                self.assertEqual(self.read(name, data).curvature, expected.curvature)

    def test_ply_elements(self):
        """Properties and elements that are not looked at, in any order, of any type."""
        points, faces = sphere(2, 2)
        expected = self.read("m.ply", ply(points, faces)).curvature
        header = ("ply\nformat %s 1.0\nobj_info of a test\nelement extra 2\nproperty list ushort short l\n"
                  "property float32 f\nelement face {}\nproperty uchar red\nproperty list uint8 uint vertex_index\n"
                  "element vertex {}\nproperty int8 a\nproperty double z\nproperty list int double w\n"
                  "property float64 x\nproperty double y\nproperty ushort b\nend_header\n").format(len(faces), len(points))
        text = "2 -5 6 1.5\n0 nan\n" + "".join("200 3 %d %d %d\n" % f for f in faces) + "".join(
            "-3 %.17g 1 0.5 %.17g %.17g 9\n" % (z, x, y) for x, y, z in points)
        self.assertEqual(self.read("t.ply", header % "ascii" + text).curvature, expected)
        data = struct.pack("<HhhfHf", 2, -5, 6, 1.5, 0, 0) + b"".join(struct.pack("<BB3I", 200, 3, *f) for f in faces) + b"".join(
            struct.pack("<bdidddH", -3, z, 1, 0.5, x, y, 9) for x, y, z in points)
        self.assertEqual(self.read("b.ply", (header % "binary_little_endian").encode() + data).curvature, expected)

    def test_3ds_objects(self):
        one, two = sphere(1, 2, (-2, 0, 0)), sphere(1, 1, (2, 0, 0))
        output = self.read("m.3ds", three_ds(one, two))
        self.assertEqual((output.vertices, output.duplicates, output.faces), (162 + 42, 0, 320 + 80))

    def test_polygons(self):
        points = [(x, y, z) for x in (0, 1) for y in (0, 1) for z in (0, 1)]
        faces = [(0, 1, 3, 2), (4, 6, 7, 5), (0, 4, 5, 1), (2, 3, 7, 6), (0, 2, 6, 4), (1, 5, 7, 3)]
        output = self.read("m.ply", ply(points, faces))
        self.assertEqual((output.faces, output.triangles), (6, 12))


class Clouds(Case):
    def fit(self, points, *arguments):
        result = self.run_on(xyz(points), *arguments, name="model.xyz")
        self.assertEqual((result.returncode, result.stderr), (0, ""))
        output = Output(result.stdout)
        self.assertLess(output.difference, 1e-6)
        self.assertLess(output.thread_difference, 1e-9)
        return output

    def test_outward(self):
        """Torus, and apart from it a sphere: the sides of normals are found piece by piece."""
        torus, _ = closed_grid(240, 80, lambda u, v: ((3 + math.cos(v)) * math.cos(u), math.sin(v), (3 + math.cos(v)) * math.sin(u)))
        output = self.fit(torus + sphere(4, 4, (9, 0, 0))[0])
        self.assertEqual(output.cholesky, 19200 + 2562)
        self.assertAlmostEqual(output.curvature[0], 1 / 4, delta=0.005)
        self.assertAlmostEqual(output.curvature[4], 5 / 8, delta=0.02)

    def test_neighbours(self):
        grid = [(i, j, 0.01 * i * j) for i in range(30) for j in range(30)]
        self.assertEqual(self.fit(grid, "-nearest", "9").neighbours, 9)
        self.assertEqual(self.fit(grid, "-nearest", "64").neighbours, 64)
        flat = [(i, j, 0) for i in range(30) for j in range(30)]
        within = self.fit(flat, "-radius", "1.5").neighbours
        self.assertAlmostEqual(within, (28 * 28 * 8 + 4 * 28 * 5 + 4 * 3) / 900, delta=0.06)
        self.assertEqual(self.fit(flat, "-radius", "0.5").neighbours, 0)
        self.assertLess(max(map(abs, self.fit(flat, "-radius", "3").curvature)), 1e-12)
        # With faces too.
        points, faces = sphere(2, 3)
        result = self.run_on(obj(points, faces), "-nearest", "12")
        self.assertIn("the nearest points, 12.0 on average", result.stdout)

    def test_odd_clouds(self):
        line = self.fit([(i, 2 * i, 3 * i) for i in range(50)])
        self.assertEqual((line.quadrics, line.without), (0, 50))
        for count in (1, 2, 3, 5):
            few = self.fit([(i, i * i, i * i * i) for i in range(count)])
            self.assertEqual((few.vertices, few.quadrics), (count, 0))
        same = self.fit([(1, 2, 3)] * 30)
        self.assertEqual((same.duplicates, same.without), (29, 1))
        clump = self.fit([(x, y, z) for x in range(4) for y in range(4) for z in range(4)], "-nearest", "63")
        self.assertEqual(clump.vertices, 64)
        tiny = self.fit([(1e-200 * i, 1e-200 * j, 1) for i in range(6) for j in range(6)] + [(5, 5, 5)])
        self.assertEqual(tiny.vertices, 37)
        far = self.fit([(1e300 * x, 1e300 * y, 1e300 * z) for x, y, z in sphere(1, 3)[0]])
        self.assertEqual(far.cholesky, 642)
        self.fit([(1e9 + x, 1e9 + y, 1e9 + z) for x, y, z in sphere(1, 3)[0]])


class Points(Case):
    """What -ply writes."""

    def read(self, name):
        with open(self.path(name), "rb") as file:
            data = file.read()
        end = data.index(b"end_header\n") + 11
        lines = data[:end].decode().splitlines()
        self.assertEqual(lines[:2], ["ply", "format binary_little_endian 1.0"])
        count = int(next(line for line in lines if line.startswith("element vertex")).split()[2])
        names = [line.split()[2] for line in lines if line.startswith("property") and "list" not in line]
        self.assertEqual(names, ["x", "y", "z", "nx", "ny", "nz", "quality", "gaussian_curvature", "thickness"])
        size = struct.calcsize("<3d6f")
        rows = [struct.unpack_from("<3d6f", data, end + size * i) for i in range(count)]
        rest = data[end + size * count:]
        faces = [struct.unpack_from("<B3i", rest, at)[1:] for at in range(0, len(rest), 13)]
        return rows, faces

    def test_sphere(self):
        """All points of the file in their order, duplicates too, in the file's units."""
        points, faces = sphere(5, 4, (100, 200, 300))
        points = points + points[:7]
        result = self.run_on(obj(points, faces), "-ply", "points.ply")
        self.assertIn("points: points.ply", result.stdout)
        rows, triangles = self.read("points.ply")
        self.assertEqual(triangles, [tuple(f) for f in faces])
        self.assertEqual([row[:3] for row in rows], points)
        self.assertEqual(rows[-7:], rows[:7])
        for (x, y, z, *n, mean, gaussian, thickness) in rows:
            self.assertAlmostEqual(sum((a - c) * b for a, b, c in zip((x, y, z), n, (100, 200, 300))), 5, delta=1e-3)
            self.assertAlmostEqual(sum(a * a for a in n), 1, delta=1e-6)
            self.assertAlmostEqual(mean, 1 / 5, delta=2e-3)
            self.assertAlmostEqual(gaussian, 1 / 25, delta=1e-3)
            self.assertTrue(0 < thickness < 0.01, thickness)
        again = self.run_mesh("-o", "again.png", "points.ply")
        self.assertEqual(Output(again.stdout).curvature, Output(result.stdout).curvature)

    def test_saddle(self):
        grid = [(0.02 * i, 0.02 * j, 0.0004 * i * j) for i in range(-20, 21) for j in range(-20, 21)]  # z = x y
        self.assertEqual(self.run_on(xyz(grid), "-ply", "p.ply", name="m.xyz").returncode, 0)
        rows, triangles = self.read("p.ply")
        self.assertEqual(triangles, [])
        middle = rows[20 * 41 + 20]
        self.assertAlmostEqual(middle[6], 0, delta=1e-4)
        self.assertAlmostEqual(middle[7], -1, delta=0.01)

    def test_none(self):
        self.run_on("0 0 0\n1 0 0\n", "-ply", "p.ply", name="m.xyz")
        rows, _ = self.read("p.ply")
        self.assertTrue(all(math.isnan(row[6]) and math.isnan(row[7]) and row[3:6] == (0, 0, 0) for row in rows))

    def test_place(self):
        result = self.run_on(obj(*sphere(1, 1)), "-ply", "no/such/place.ply")
        self.assertEqual((result.returncode, result.stderr),
                         (1, "mesh: no/such/place.ply: cannot write the points: No such file or directory\n"))
        if os.path.exists("/dev/full"):
            result = self.run_on(obj(*sphere(1, 4)), "-ply", "/dev/full")
            self.assertEqual((result.returncode, result.stderr),
                             (1, "mesh: /dev/full: cannot write the points: No space left on device\n"))


class Terminal(Case):
    def shown(self, *options):
        """What the program writes to a terminal, as lines written over each other."""
        with open(self.path("m.xyz"), "w") as file:
            for i in range(60):
                for j in range(60):
                    file.write("%d %d %.3f\n" % (i, j, 2 * math.sin(i / 4) * math.cos(j / 3)))
        reader, writer = pty.openpty()
        process = subprocess.Popen([PROGRAM, "m.xyz", *options], stdout=subprocess.DEVNULL, stderr=writer,
                                   cwd=self.directory.name)
        os.close(writer)
        shown = b""
        try:
            while data := os.read(reader, 1 << 16):
                shown += data
        except OSError:  # the other end is closed
            pass
        os.close(reader)
        self.assertEqual(process.wait(), 0)
        return shown.decode()

    def test_progress(self):
        """A line for each kind of work, and nothing is left of it."""
        text = self.shown("-progress")
        lines = [line for line in text.split("\r") if line not in ("", "\033[K")]
        for line in lines:
            self.assertRegex(line, r"^[a-zA-Z ]+: +\d+ %\033\[K$")
        self.assertTrue({"reading", "neighbours", "drawing"} <= {line.split(":")[0] for line in lines}, text)
        self.assertTrue(text.endswith("\r\033[K"))
        self.assertNotIn("\n", text)


class Pictures(Case):
    def test_picture(self):
        points, faces = sphere(2)
        for flip in (False, True):
            result = self.run_on(obj(points, [face[::-1] if flip else face for face in faces]))
            self.assertEqual(result.returncode, 0)
            self.assertIn("picture: picture.png, 1000 by 800", result.stdout)
            width, height, rows = read_png(self.path("picture.png"))
            self.assertEqual((width, height), (1000, 800))
            red, _, blue = rows[400][500]
            self.assertGreater((blue - red if flip else red - blue), 40)  # one sign of curvature, one side of the colours
            grey = lambda pixel: max(pixel) - min(pixel) < 8
            colours = Counter(pixel for row in rows for pixel in row)
            drawn = sum(times for pixel, times in colours.items() if not grey(pixel))
            radius = 0.5 * (1 - 2 * 0.06) * 800
            self.assertAlmostEqual(drawn / (math.pi * radius**2), 1, delta=0.03)
            for y, x in ((0, 0), (0, 999), (799, 0), (799, 999), (20, 500), (780, 500), (400, 100)):
                self.assertTrue(grey(rows[y][x]), (x, y))
            # Lit from above on the left.
            self.assertGreater(sum(rows[300][400]), sum(rows[550][600]))

    def test_nearer_hides_farther(self):
        """Blue (inside out) in front of red, whichever is drawn first."""
        front, back = sphere(0.5, 3, (0, 0, 2)), sphere(0.5, 3, (0, 0, -2))
        front = front[0], [face[::-1] for face in front[1]]
        for models in ((front, back), (back, front)):
            self.run_on(obj(*joined(*models)), "-turn", "0", "-tilt", "0")
            _, _, rows = read_png(self.path("picture.png"))
            red, _, blue = rows[400][500]
            self.assertGreater(blue, red + 40)

    def test_turn(self):
        """Seen from its right side, what was right is near."""
        models = joined(sphere(1, 2, (3, 0, 0)), sphere(1, 2, (-3, 0, 0)))
        self.run_on(obj(*models), "-turn", "0", "-tilt", "0")
        apart = read_png(self.path("picture.png"))[2][400][500]
        self.run_on(obj(*models), "-turn", "90", "-tilt", "0")
        behind = read_png(self.path("picture.png"))[2][400][500]
        self.assertLess(max(apart) - min(apart), 8)
        self.assertGreater(behind[0] - behind[2], 40)

    def test_default_place(self):
        with open(self.path("m.obj"), "w") as file:
            file.write(obj(*sphere(1, 1)))
        self.assertEqual(self.run_mesh("m.obj").returncode, 0)
        self.assertEqual(read_png(self.path("mesh.png"))[:2], (1000, 800))


class BadInput(Case):
    GOOD = "v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1 2 3\n"

    CASES = (
        ("", ": no points"),
        ("# nothing\n", ": no points"),
        ("f 1 2 3\n", ":1: vertex index 3 out of range: there are 0 vertices"),
        (GOOD + "v 1 2\n", ":5: a vertex has 3 coordinates, here are 2 numbers"),
        (GOOD + "v 1 2 3 4 5\n", ":5: a vertex has 3 coordinates, here are 5 numbers"),
        (GOOD + "v\n", ":5: a vertex has 3 coordinates, here are 0 numbers"),
        ("\n\nv 1 2 x\n", ":3: 'x' is not a number"),
        ("v 1 2 3e\n" + GOOD, ":1: '3e' is not a number"),
        ("v 1 2 0,5\n" + GOOD, ":1: '0,5' is not a number"),
        (GOOD + "v nan 0 0\n", ":5: 'nan' is not a finite number"),
        (GOOD + "v 0 -inf 0\n", ":5: '-inf' is not a finite number"),
        (GOOD + "v 0 0 1e999\n", ":5: '1e999' is not a finite number"),
        (GOOD + "f 1 2\n", ":5: a face has at least 3 corners, here are 2"),
        (GOOD + "f\n", ":5: a face has at least 3 corners, here are 0"),
        (GOOD + "f 1 2 x\n", ":5: 'x' is not a corner"),
        (GOOD + "f 1 2 3.5\n", ":5: '3.5' is not a corner"),
        (GOOD + "f 1 2 3/\n", ":5: '3/' is not a corner"),
        (GOOD + "f 1 2 3//\n", ":5: '3//' is not a corner"),
        (GOOD + "vt 0 0\nvn 0 0 1\nf 1 2 3/1/1/1\n", ":7: '3/1/1/1' is not a corner"),
        (GOOD + "f 1 2 /3\n", ":5: '/3' is not a corner"),
        (GOOD + "f 1 2 4\n", ":5: vertex index 4 out of range: there are 3 vertices"),
        ("f 1 2 9\n" + GOOD, ":1: vertex index 9 out of range: there are 3 vertices"),
        (GOOD + "f 1 2 0\n", ":5: vertex index 0 out of range: there are 3 vertices"),
        (GOOD + "f 1 2 -4\n", ":5: vertex index -4 out of range: there are 3 vertices"),
        ("f -1 -2 -3\n" + GOOD, ":1: vertex index -1 out of range: there are 0 vertices"),
        (GOOD + "f 1 2 99999999999999999999\n", ":5: vertex index 99999999999999999999 out of range"),
        (GOOD + "f 1 2 4294967297\n", ":5: vertex index 4294967297 out of range"),
        (GOOD + "f 1/1 2/1 3/1\n", ":5: texture index 1 out of range: there are 0 texture vertices"),
        (GOOD + "vn 0 0 1\nf 1//1 2//1 3//2\n", ":6: normal index 2 out of range: there are 1 normals"),
        (GOOD + "hello\n", ":5: unknown statement 'hello'"),
        (b"\x89PNG\r\n\x1a\n\0\0\0", ":1: unknown statement '?PNG'"),
        ("v 0 0 \\\n0\nv 1 0\n", ":3: a vertex has 3 coordinates, here are 2 numbers"),
    )

    def test_files(self):
        for text, message in self.CASES:
            with self.subTest(text):
                result = self.run_on(text)
                self.assertEqual(result.returncode, 1)
                self.assertEqual(result.stderr.count("\n"), 1)
                self.assertTrue(result.stderr.startswith("mesh: model.obj" + message), result.stderr)
                self.assertFalse(os.path.exists(self.path("picture.png")))
        self.assertEqual(self.run_on(self.GOOD).returncode, 0)

    PLY = ply([(0, 0, 0), (1, 0, 0), (0, 1, 0)], [(0, 1, 2)])
    HEADER = ply_header("ascii", 3, 1)
    BINARY = ply([(0, 0, 0), (1, 0, 0), (0, 1, 0)], [(0, 1, 2)], "binary_little_endian")
    START = BINARY.index(b"end_header") + 11  # of the data
    STL = stl([(0, 0, 0), (1, 0, 0), (0, 1, 0)], [(0, 1, 2), (2, 1, 0)])
    STL_TEXT = stl([(0, 0, 0), (1, 0, 0), (0, 1, 0)], [(0, 1, 2)], True)
    THREE_DS = three_ds(([(0, 0, 0), (1, 0, 0), (0, 1, 0)], [(0, 1, 2)]))

    OTHER_CASES = (
        ("m.xyz", "", ": no points"),
        ("m.xyz", "0 0 0\n1 x 0\n", ":2: 'x' is not a number"),
        ("m.xyz", "0 0 0\n1 0\n", ":2: a point has 3 coordinates, here are 2 numbers"),
        ("m.xyz", "0 0 0 1\n1 0 0\n", ":2: here are 3 numbers, on the lines before 4"),
        ("m.xyz", "0 0 0 1\n1 0 0 x\n", ":2: 'x' is not a number"),
        ("m.xyz", "0 0 inf\n", ":1: 'inf' is not a finite number"),
        ("m.xyz", "0 0 1e400\n", ":1: '1e400' is not a finite number"),
        ("m.xyz", b"\x89PNG\0 1 2 3", ":1: '?PNG?' is not a number"),
        ("m.ply", "", ":1: a PLY file begins with a line ply"),
        ("m.ply", GOOD, ":1: a PLY file begins with a line ply"),
        ("m.ply", "ply\nformat ascii 1.0\n", ":2: the file ends in the middle of its header"),
        ("m.ply", "ply\nend_header\n", ":2: the header tells no format"),
        ("m.ply", "ply\nformat xml 1.0\nend_header\n", ":2: unknown format 'xml'"),
        ("m.ply", "ply\nformat ascii 2.0\nend_header\n", ":2: unknown version '2.0'"),
        ("m.ply", "ply\nformat ascii 1.0\nhello\nend_header\n", ":3: not a line of a header: 'hello'"),
        ("m.ply", "ply\nformat ascii 1.0\nelement vertex x\n", ":3: 'x' is not an integer"),
        ("m.ply", "ply\nformat ascii 1.0\nelement vertex -1\n", ":3: -1 elements"),
        ("m.ply", "ply\nformat ascii 1.0\nproperty float x\n", ":3: a property without an element"),
        ("m.ply", "ply\nformat ascii 1.0\nelement vertex 1\nproperty real x\n", ":4: unknown type 'real'"),
        ("m.ply", "ply\nformat ascii 1.0\nelement face 1\nproperty list float int a\n", ":4: the length of a list is no integer"),
        ("m.ply", "ply\nformat ascii 1.0\nelement vertex 0\nend_header\n", ":3: the element vertex has not the properties x, y and z"),
        ("m.ply", "ply\nformat ascii 1.0\nend_header\n", ": no points"),
        ("m.ply", PLY.replace("vertex_indices", "indices"), ":8: the element face has not a list vertex_indices"),
        ("m.ply", PLY.replace("3 0 1 2", "3 0 1 3"), ":14: vertex index 3 out of range: there are 3 vertices"),
        ("m.ply", PLY.replace("3 0 1 2", "3 0 1 -1"), ":14: vertex index -1 out of range: there are 3 vertices"),
        ("m.ply", PLY.replace("3 0 1 2", "3 0 1 x"), ":14: 'x' is not an integer"),
        ("m.ply", PLY.replace("3 0 1 2", "3 0 1"), ":14: here are 3 numbers, there should be more"),
        ("m.ply", PLY.replace("3 0 1 2", "3 0 1 2 2"), ":14: here are 5 numbers, there should be 4"),
        ("m.ply", PLY.replace("3 0 1 2", "2 0 1"), ":14: a face has at least 3 corners, here are 2"),
        ("m.ply", PLY.replace("3 0 1 2", "-3 0 1"), ":14: a list of -3 numbers"),
        ("m.ply", PLY.replace("1 0 0", "1 x 0"), ":12: 'x' is not a number"),
        ("m.ply", PLY.replace("1 0 0", "1 nan 0"), ":12: 'nan' is not a finite number"),
        ("m.ply", PLY + "1 2 3\n", ":15: behind the last element"),
        ("m.ply", HEADER + "0 0 0\n1 0 0\n", ":12: the file ends after 2 of 3 elements 'vertex'"),
        ("m.ply", HEADER + "0 0 0\n1 0 0\n0 1 0\n", ":13: the file ends after 0 of 1 elements 'face'"),
        ("m.ply", ply_header("ascii", 4000000000) + "0 0 0\n", ":4: too many points"),
        ("m.ply", ply_header("binary_little_endian", 200000000) + "0", f": byte {len(ply_header('binary_little_endian', 200000000)) + 1}: the file ends here, in the middle of its data"),
        ("m.ply", BINARY[:-1], f": byte {len(BINARY) - 1}: the file ends here, in the middle of its data"),
        ("m.ply", BINARY[:START + 30], f": byte {START + 30}: the file ends here, in the middle of its data"),
        ("m.ply", BINARY + b"12", f": byte {len(BINARY)}: 2 bytes behind the last element"),
        ("m.ply", BINARY[:-4] + b"\3\0\0\0", f": byte {len(BINARY) - 4}: vertex index 3 out of range: there are 3 vertices"),
        ("m.ply", BINARY[:START + 8] + struct.pack("<d", math.nan) + BINARY[START + 16:], f": byte {START + 8}: a coordinate that is not a finite number"),
        ("m.stl", "", ": byte 0: the file ends here, in the middle of its data"),
        ("m.stl", "hello\n", ": byte 6: the file ends here, in the middle of its data"),
        ("m.stl", STL[:-1], ": byte 80: 2 facets take 100 bytes, here are 99"),
        ("m.stl", STL + b"1", ": byte 80: 2 facets take 100 bytes, here are 101"),
        ("m.stl", STL[:80] + b"\xff\xff\xff\xff" + STL[84:], ": byte 80: 4294967295 facets take 214748364750 bytes, here are 100"),
        ("m.stl", STL[:96] + struct.pack("<f", math.inf) + STL[100:], ": byte 96: a coordinate that is not a finite number"),
        ("m.stl", STL[:80] + b"\0\0\0\0", ": no points"),
        ("m.stl", STL_TEXT.replace("vertex 1 0 0", "vertex 1 x 0"), ":5: 'x' is not a number"),
        ("m.stl", STL_TEXT.replace("vertex 1 0 0", "vertex 1 0"), ":5: here are 2 numbers, there should be 3"),
        ("m.stl", STL_TEXT.replace("outer loop", "loop"), ":3: 'outer' should stand here, not 'loop'"),
        ("m.stl", STL_TEXT.replace("endloop\n", ""), ":7: 'endloop' should stand here, not 'endfacet'"),
        ("m.stl", STL_TEXT[:STL_TEXT.index("endsolid")], ":8: the file ends before endsolid"),
        ("m.stl", STL_TEXT[:STL_TEXT.index("endloop")], ":6: the file ends in the middle of a facet"),
        ("m.3ds", "", ": byte 0: a chunk that has no room for its length"),
        ("m.3ds", "hello, world", ": byte 0: a chunk of "),
        ("m.3ds", chunk(0x3d3d), ": byte 0: not a 3DS file"),
        ("m.3ds", chunk(0x4d4d), ": no points"),
        ("m.3ds", THREE_DS[:-1], f": byte 0: a chunk of {len(THREE_DS)} bytes where there are {len(THREE_DS) - 1}"),
        ("m.3ds", three_ds(([(0, 0, 0), (1, 0, 0), (0, 1, 0)], [(0, 1, 3)])), ": byte 95: vertex index 3 out of range: there are 3 vertices"),
        ("m.3ds", three_ds(([(0, 0, 0), (1, math.nan, 0), (0, 1, 0)], [])), ": byte 63: a coordinate that is not a finite number"),
        ("m.3ds", chunk(0x4d4d, chunk(0x3d3d, chunk(0x4000, b"n\0", chunk(0x4100, chunk(0x4110, b"\5\0", b"1234"))))), ": byte 34: 60 bytes of data in a chunk with 4"),
        ("m.3ds", chunk(0x4d4d, chunk(0x3d3d, chunk(0x4000, b"name"))), ": byte 22: 1 bytes of data in a chunk with 0"),
        ("m.png", GOOD, ": the name does not tell what it is: .obj, .ply, .xyz, .stl and .3ds are read"),
        ("obj", GOOD, ": the name does not tell"),
        ("m.obj.gz", GOOD, ": the name does not tell"),
    )

    def test_other_formats(self):
        for name, data, message in self.OTHER_CASES:
            with self.subTest(name=name, data=data):
                result = self.run_on(data, name=name)
                self.assertEqual(result.returncode, 1)
                self.assertEqual(result.stderr.count("\n"), 1)
                self.assertTrue(result.stderr.startswith(f"mesh: {name}" + message), result.stderr)
                self.assertFalse(os.path.exists(self.path("picture.png")))
        for name, data in (("m.ply", self.PLY), ("m.ply", self.BINARY), ("m.stl", self.STL), ("m.stl", self.STL_TEXT),
                           ("m.3ds", self.THREE_DS)):
            self.assertEqual(self.run_on(data, name=name).returncode, 0)

    def test_truncated(self):
        """Files that end at any byte: refused, or used as far as a text tells that it is whole; never a crash."""
        text_end = self.PLY.rindex("2")  # without the last line end nothing is missing
        for name, data, whole in (("m.ply", self.BINARY, len(self.BINARY)), ("m.ply", self.PLY.encode(), text_end + 1),
                                  ("m.stl", self.STL, len(self.STL)), ("m.3ds", self.THREE_DS, len(self.THREE_DS)),
                                  ("m.stl", self.STL_TEXT.encode(), self.STL_TEXT.rindex("endsolid") + 8)):
            for size in range(0, whole, 5):
                with self.subTest(name=name, size=size):
                    result = self.run_on(data[:size], name=name)
                    self.assertEqual(result.returncode, 1)
                    self.assertRegex(result.stderr, rf"^mesh: {name}:.*\n$")

    def test_missing(self):
        result = self.run_mesh("nowhere.obj")
        self.assertEqual((result.returncode, result.stderr),
                         (1, "mesh: nowhere.obj: cannot open: No such file or directory\n"))
        result = self.run_mesh(self.directory.name)
        self.assertEqual((result.returncode, result.stderr), (1, f"mesh: {self.directory.name}: cannot read: Is a directory\n"))

    def test_picture_place(self):
        result = self.run_on(self.GOOD, "-o", "no/such/place.png")
        self.assertEqual(result.returncode, 1)
        self.assertIn("mesh: no/such/place.png: cannot write the picture", result.stderr)

    def test_usage(self):
        for arguments in (["-o"], ["-x"], ["a.obj", "b.obj"], ["-turn", "x", "a.obj"], ["-tilt", "nan", "a.obj"],
                          ["-ply"], ["-nearest", "0", "a.obj"], ["-nearest", "65", "a.obj"], ["-nearest", "2.5", "a.obj"],
                          ["-radius", "0", "a.obj"], ["-radius", "-1", "a.obj"], ["-radius", "1", "-nearest", "5", "a.obj"]):
            result = self.run_mesh(*arguments)
            self.assertEqual((result.returncode, result.stdout), (2, ""), arguments)
            self.assertIn("usage: mesh", result.stderr)
        result = self.run_mesh("-h")
        self.assertEqual((result.returncode, result.stderr), (0, ""))


if __name__ == "__main__":
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    unittest.main()
