#!/usr/bin/env python3
"""Runs the program mesh on files made here: python3 test_mesh.py PROGRAM [test...]"""
import math
import os
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

    def run_on(self, text, *arguments):
        with open(self.path("model.obj"), "wb") as file:
            file.write(text if isinstance(text, bytes) else text.encode())
        return self.run_mesh("-o", "picture.png", *arguments, "model.obj")


class Output:
    """The numbers that the program prints."""

    def __init__(self, text):
        def numbers(pattern):
            found = re.search(pattern, text)
            assert found, f"'{pattern}' not in\n{text}"
            return [float(group) for group in found.groups()]

        number = r"(-?[\d.]+(?:e[-+]\d+)?)"
        self.vertices, self.duplicates, self.faces, self.triangles = numbers(
            r": (\d+) vertices \((\d+) of them duplicates\), (\d+) faces, (\d+) triangles")
        self.quadrics, self.cholesky, self.qr, self.without = numbers(
            r"fits: (\d+) quadrics .* (\d+) by Cholesky, (\d+) by QR; (\d+) vertices without")
        self.difference, self.thread_difference = numbers(f"relative: {number} .*, {number} ")
        self.curvature = None
        if self.quadrics:
            self.curvature = numbers(f"mean curvature: {number} least, {number} at 5 %, {number} median, "
                                     f"{number} at 95 %, {number} greatest")
        self.equal = text.count("results equal")


def obj(points, faces):
    return "".join("v %.17g %.17g %.17g\n" % tuple(p) for p in points) + "".join(
        "f " + " ".join(str(i + 1) for i in f) + "\n" for f in faces)


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
        self.assertEqual(output.equal, 2, result.stdout)
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
        ("", ": no vertices"),
        ("# nothing\n", ": no vertices"),
        ("f 1 2 3\n", ": no vertices"),
        ("v 0 0 0\nv 1 0 0\nv 0 1 0\n", ": no faces"),
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

    def test_missing(self):
        result = self.run_mesh("nowhere.obj")
        self.assertEqual((result.returncode, result.stderr),
                         (1, "mesh: nowhere.obj: cannot open: No such file or directory\n"))
        result = self.run_mesh(self.directory.name)
        self.assertEqual((result.returncode, result.stderr), (1, f"mesh: {self.directory.name}: cannot read\n"))

    def test_picture_place(self):
        result = self.run_on(self.GOOD, "-o", "no/such/place.png")
        self.assertEqual(result.returncode, 1)
        self.assertIn("mesh: no/such/place.png: cannot write the picture", result.stderr)

    def test_usage(self):
        for arguments in (["-o"], ["-x"], ["a.obj", "b.obj"], ["-turn", "x", "a.obj"], ["-tilt", "nan", "a.obj"]):
            result = self.run_mesh(*arguments)
            self.assertEqual((result.returncode, result.stdout), (2, ""), arguments)
            self.assertIn("usage: mesh", result.stderr)
        result = self.run_mesh("-h")
        self.assertEqual((result.returncode, result.stderr), (0, ""))


if __name__ == "__main__":
    PROGRAM = os.path.abspath(sys.argv.pop(1))
    unittest.main()
