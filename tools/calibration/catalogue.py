"""Camera makers, bodies and lenses of the calibration catalogue: sample data.

The makers are real; their bodies, lenses and calibrations are invented and no camera was measured. The rows have the
form and the number of the real catalogue, so that its readers can be built and tested.

All values are derived from the tables below and a fixed seed, so that every machine makes the same rows. Random.random()
is the only function of its module whose sequence Python guarantees.
"""

import random

SEED = 5004003

# Sensor formats with their crop factor; a fixed-lens camera calibrates only its own lens.
FULL_FRAME, APS, THIRDS, MEDIUM, FIXED = 1.0, 1.5, 2.0, 0.8, 5.6

# maker: [(series, number of bodies, sensor format)]
MAKERS = {
    "Apple": [("IPhone", 16, FIXED), ("IPad", 5, FIXED)],
    "Canon": [("EOS", 46, FULL_FRAME), ("EOS Kit", 22, APS), ("Power", 10, FIXED)],
    "Casio": [("Exil", 5, FIXED)],
    "Contax": [("N", 2, FULL_FRAME)],
    "Epson": [("RD", 3, FULL_FRAME)],
    "Fujifilm": [("Fine", 12, FIXED), ("XS", 24, APS)],
    "Hasselblad": [("HD", 9, MEDIUM)],
    "Kodak": [("DC Pro", 6, FULL_FRAME), ("Easy", 5, FIXED)],
    "Konica Minolta": [("Dyna", 4, APS), ("Dim", 3, FIXED)],
    "Leaf": [("Ap", 8, MEDIUM)],
    "Leica": [("M", 10, FULL_FRAME), ("SL", 4, FULL_FRAME), ("Lux", 10, FIXED)],
    "Mamiya": [("ZD", 4, MEDIUM)],
    "Nikon": [("D", 40, FULL_FRAME), ("DX", 28, APS), ("Cool", 12, FIXED)],
    "Nokia": [("Lum", 7, FIXED)],
    "Olympus": [("E", 30, THIRDS), ("Stylo", 6, FIXED)],
    "Panasonic": [("G", 30, THIRDS), ("Lumi", 14, FIXED)],
    "Pentax": [("K", 26, APS), ("Q", 4, FIXED)],
    "Phase One": [("IQ", 10, MEDIUM)],
    "Ricoh": [("GX", 7, FIXED)],
    "Samsung": [("NX", 16, APS), ("Gala", 12, FIXED)],
    "Sony": [("Alfa", 38, FULL_FRAME), ("Nexa", 18, APS), ("Cyb", 12, FIXED)],
}

TELEPHONES = ("Apple", "Nokia")

# (shortest, longest focal length in millimetres, f-number at each end)
ZOOMS = [
    (8, 16, 4.5, 5.6), (10, 20, 4.0, 5.6), (10, 24, 3.5, 4.5), (11, 16, 2.8, 2.8), (12, 24, 4.0, 4.0),
    (14, 24, 2.8, 2.8), (15, 85, 3.5, 5.6), (16, 35, 2.8, 2.8), (16, 50, 2.8, 2.8), (17, 40, 4.0, 4.0),
    (17, 70, 2.8, 4.0), (18, 55, 3.5, 5.6), (18, 105, 3.5, 5.6), (18, 200, 3.5, 6.3), (24, 70, 2.8, 2.8),
    (24, 105, 4.0, 4.0), (28, 75, 2.8, 2.8), (28, 300, 3.5, 6.3), (35, 100, 2.8, 2.8), (50, 150, 2.8, 2.8),
    (55, 250, 4.0, 5.6), (70, 200, 2.8, 2.8), (70, 200, 4.0, 4.0), (70, 300, 4.0, 5.6), (80, 400, 4.5, 5.6),
    (100, 400, 4.5, 5.6), (120, 300, 2.8, 2.8), (150, 500, 5.0, 6.3), (150, 600, 5.0, 6.3), (200, 400, 4.0, 4.0),
]
PRIMES = [
    (10, 2.8), (14, 2.8), (15, 2.8), (18, 2.8), (20, 1.8), (21, 2.8), (24, 1.4), (24, 2.8), (25, 2.0), (28, 1.8),
    (28, 2.8), (30, 1.4), (35, 1.4), (35, 2.0), (40, 2.8), (45, 2.8), (50, 1.2), (50, 1.4), (50, 1.8), (50, 2.8),
    (55, 1.8), (58, 1.4), (60, 2.8), (70, 2.8), (75, 1.8), (80, 2.8), (85, 1.4), (85, 1.8), (90, 2.8), (100, 2.0),
    (100, 2.8), (105, 1.4), (135, 1.8), (135, 2.0), (150, 2.8), (180, 3.5), (200, 2.0), (300, 2.8), (300, 4.0),
    (400, 2.8), (400, 5.6), (500, 4.0), (600, 4.0), (800, 5.6),
]


class Chance:
    """Pseudo-random choices, the same in every run."""

    def __init__(self, seed):
        self._random = random.Random(seed)

    def below(self, limit):
        return int(self._random.random() * limit)

    def one_in(self, count):
        return self.below(count) == 0


class Lens:
    def __init__(self, identifier, thumbnail, fmin, fmax, wide, tele):
        self.identifier, self.thumbnail = identifier, thumbnail
        self.fmin, self.fmax, self.wide, self.tele = float(fmin), float(fmax), wide, tele
        focal = f"{fmin} mm" if fmin == fmax else f"{fmin}-{fmax} mm"
        aperture = f"f/{wide}" if wide == tele else f"f/{wide}-{tele}"
        self.name = f"{focal} {aperture}"

    def ranges(self):
        """Focal ranges measured one by one: a prime has one, a zoom one for about each 1.6 times its length."""
        if self.fmin == self.fmax:
            return [(self.fmin, self.fmax)]
        stops, focal = [self.fmin], self.fmin
        while focal * 1.6 < self.fmax * 0.95:
            focal = float(round(focal * 1.6))
            stops.append(focal)
        stops.append(self.fmax)
        return list(zip(stops, stops[1:]))


class Body:
    def __init__(self, number, maker, maker_name, model, sensor):
        self.number, self.maker, self.model, self.sensor = number, maker, model, sensor
        self.is_telephone = maker_name in TELEPHONES
        self.identifier = (maker_name + model).replace(" ", "")
        self.title = f"{maker_name} {model}"


def lens_pool(maker):
    """The lenses that fit a maker's bodies; the identifier is unique over all makers."""
    zooms = [Lens(f"{maker:02}-Z{i:04}", 100 + i, *zoom) for i, zoom in enumerate(ZOOMS)]
    primes = [Lens(f"{maker:02}-P{i:04}", 500 + i, f, f, a, a) for i, (f, a) in enumerate(PRIMES)]
    return zooms + primes


def fixed_lens(chance, zooms):
    shortest = 40 + chance.below(60)
    longest = shortest * (2 + chance.below(5)) if zooms else shortest
    aperture = (1.8, 2.0, 2.4, 2.8, 3.3)[chance.below(5)]
    tele_aperture = aperture if shortest == longest else aperture * 2
    return Lens("NULL", 0, shortest / 10, longest / 10, aperture, tele_aperture)


def bodies():
    result = []
    for maker, (maker_name, lines) in enumerate(MAKERS.items(), start=1):
        for series, count, sensor in lines:
            for index in range(count):
                # 10, 10S, 20, 20S, ...; a telephone counts by ones: 4, 4S, 5, 5S, ...
                step, first = (1, 4) if maker_name in TELEPHONES else (10, 10)
                model = f"{series} {first + step * (index // 2)}{'S' if index % 2 else ''}"
                result.append(Body(len(result) + 1, maker, maker_name, model, sensor))
    return result
