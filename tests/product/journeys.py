"""What people do with the program, from opening a picture to the files that other programs read."""
import subprocess

from desk import *

RED, GREEN, BLUE, GREY = (200, 40, 40), (40, 160, 60), (30, 60, 180), (128, 128, 128)
WIDTH, HEIGHT = 400, 300


def write_quarters(path, colors=(RED, GREEN, BLUE, GREY)):
    """A picture of four flat quarters: upper left, upper right, lower left, lower right."""
    rows = [bytes(left * (WIDTH // 2) + right * (WIDTH // 2)) * (HEIGHT // 2)
            for left, right in (colors[:2], colors[2:])]
    subprocess.run(["convert", "ppm:-", path], input=b"P6 %d %d 255\n" % (WIDTH, HEIGHT) + b"".join(rows), check=True)
    return path


def on_screen(program, x, y):
    """Where a pixel of a picture of WIDTH x HEIGHT, counted from its upper left corner, is seen at actual size."""
    return program.middle[0] - WIDTH / 2 + x, program.middle[1] - HEIGHT / 2 + y


def shown_quarters(program):
    screen = Screen()
    return [screen.at(*on_screen(program, x, y)) for y in (75, 225) for x in (100, 300)]


def inverted(colors):
    """Filters count in linear light."""
    def linear(v):
        return v / 12.92 if v <= 0.04045 else ((v + 0.055) / 1.055) ** 2.4

    def coded(v):
        return v * 12.92 if v <= 0.0031308 else 1.055 * v ** (1 / 2.4) - 0.055
    return [tuple(round(255 * coded(1 - linear(v / 255))) for v in color) for color in colors]


def near(color, other, by=3):
    return all(abs(a - b) <= by for a, b in zip(color, other))


class Journey(ProductTest):
    def assertQuarters(self, program, colors):
        def right():
            return all(map(near, shown_quarters(program), colors))
        try:
            wait(right, "")
        except AssertionError:
            self.assertEqual(shown_quarters(program), list(colors))

    def start_with_quarters(self):
        program = self.start(write_quarters(self.home / "quarters.png"))
        program.find("label", "400 × 300 px.*")
        program.middle = program.picture().center
        keys("ctrl+alt+0")
        self.assertQuarters(program, (RED, GREEN, BLUE, GREY))
        return program

    def discard_changes(self, program):
        keys("ctrl+q")
        program.press("Don.t Save", inside=program.dialog())
        self.assertEqual(program.process.wait(PATIENCE), 0)


class Standard(Journey):
    def test_open_filter_apply_and_take_back(self):
        program = self.start_with_quarters()
        other = write_quarters(self.home / "other picture.png", (GREY, BLUE, GREEN, RED))
        keys("ctrl+o")
        program.dialog()
        type_text(other)
        keys("Return")
        self.assertQuarters(program, (GREY, BLUE, GREEN, RED))

        program.pick("color invert")
        self.assertQuarters(program, inverted((GREY, BLUE, GREEN, RED)))
        keys("ctrl+Return")
        wait(lambda: not program.find("push button", "Apply").has(State.ENABLED), "the filter to be applied")
        self.assertQuarters(program, inverted((GREY, BLUE, GREEN, RED)))
        program.press("Turn right")
        wait(lambda: program.seen("label", "300 × 400 px.*"), "the picture to be turned")
        keys("ctrl+z")
        wait(lambda: program.seen("label", "400 × 300 px.*"), "the picture to be turned back")
        keys("ctrl+z")
        self.assertQuarters(program, (GREY, BLUE, GREEN, RED))
        keys("ctrl+z")  # the opening, too, but not the one that the program has started with
        self.assertQuarters(program, (RED, GREEN, BLUE, GREY))
        wait(lambda: not program.find("push button", "Undo").has(State.ENABLED), "nothing more to take back")
        keys("ctrl+y")
        self.assertQuarters(program, (GREY, BLUE, GREEN, RED))
        keys("ctrl+y", "ctrl+y", "ctrl+y")
        self.discard_changes(program)

    def test_sliders_by_key_and_by_mouse(self):
        program = self.start_with_quarters()
        program.pick("exposure adjust")
        def value():  # the panel may have been made anew
            return program.find("slider", "EV").value
        slider = program.find("slider", "EV")
        standard, before = value(), shown_quarters(program)
        keys("F6")
        for _ in range(8):
            if slider.has(State.FOCUSED):
                break
            keys("F6")
        keys("Right", "Right", "Right")
        wait(lambda: slider.value > standard, "the slider to follow the keys")
        wait(lambda: sum(shown_quarters(program)[3]) > sum(before[3]), "a brighter picture")
        by_key = slider.value
        left, top, width, height = slider.area
        drag((left + width * 0.6, top + height / 2), (left + width * 0.2, top + height / 2))
        wait(lambda: slider.value < standard, "the slider to follow the mouse")
        wait(lambda: sum(shown_quarters(program)[3]) < sum(before[3]), "a darker picture")
        keys("ctrl+z")
        wait(lambda: abs(value() - by_key) < 1e-3, "the mouse's change to be taken back")
        readout = program.find("text", "EV")
        readout.click()
        keys("ctrl+a")
        type_text("0")
        keys("Return")
        self.assertQuarters(program, (RED, GREEN, BLUE, GREY))

    def test_a_point_is_dragged_on_the_picture(self):
        program = self.start_with_quarters()
        program.pick("hole distortion")
        point = program.find("image", "Hole Distortion.*", inside=program.picture())
        wait(lambda: near(point.center, on_screen(program, 150, 150), 2), "the point at its place")
        seen = Screen()
        surround = seen.at(*on_screen(program, 200, 100))
        old_place, new_place = on_screen(program, 60, 200), on_screen(program, 320, 140)
        self.assertFalse(near(seen.at(*new_place), surround))
        drag(point.center, on_screen(program, 280, 100))
        wait(lambda: near(point.center, on_screen(program, 280, 100), 2), "the point at the new place")
        wait(lambda: near(Screen().at(*new_place), surround), "the hole around it")
        self.assertFalse(near(Screen().at(*old_place), surround))
        # and by keys: Tab chooses it
        program.picture().node.grab_focus()
        wait(lambda: program.picture().has(State.FOCUSED), "the keyboard on the picture")
        keys("Tab")
        wait(lambda: point.has(State.FOCUSED), "the point to be chosen")
        keys("shift+Left", "shift+Left", "Down")
        wait(lambda: near(point.center, on_screen(program, 260, 101), 2), "the point to follow the keys")


class Effects(Journey):
    def test_a_generated_effect_is_drawn_anew_and_applied(self):
        program = self.start_with_quarters()
        before = program.settled()
        keys("alt+3")
        area = program.picture().area
        program.find("table cell", "Plasma Effect").click()
        first = program.changes(before, area)
        program.press("Generate")
        program.changes(first, area)
        program.press("Apply")
        keys("alt+1")
        wait(lambda: not any(map(near, shown_quarters(program), (RED, GREEN, BLUE, GREY))), "the plasma as the picture")

    def test_a_surface_is_turned_by_hand(self):
        program = self.start_with_quarters()
        keys("alt+2")
        view = wait(program.picture, "the view")
        area = view.area
        before = program.settled()
        program.find("table cell", "Surface Rotate").click()
        flat = program.changes(before, area)
        x, y = view.center
        drag((x, y), (x + 150, y + 40))
        turned = program.changes(flat, area)
        keys("Right", "Right")
        program.changes(turned, area)


class Favourites(Journey):
    def test_a_favourite_is_there_after_a_restart(self):
        program = self.start_with_quarters()
        program.pick("color invert")
        program.press("Add to the favourites.*")
        program.find("check box", "Color Invert")
        self.discard_changes(program)

        program = self.start_with_quarters()
        favourite = program.find("check box", "Color Invert")
        favourite.click()
        self.assertQuarters(program, inverted((RED, GREEN, BLUE, GREY)))
        favourite.click()
        self.assertQuarters(program, (RED, GREEN, BLUE, GREY))


class Export(Journey):
    FORMATS = {  # and what they are to another program
        "JPEG": "JPEG", "JPEG-2000": "JP2", "TIFF": "TIFF", "GIF": "GIF", "PNG": "PNG", "BMP": "BMP3", "ICNS": "TIFF"}

    def save_as(self, program, name, form):
        keys("ctrl+shift+s")
        panel = program.dialog()
        program.find("combo box", "|".join([*self.FORMATS, "PDF"]), inside=panel).click()
        program.find("list item", form).click()
        wait(lambda: program.seen("combo box", form, inside=panel), "the format to be chosen")
        field = program.find("text", "File name:", inside=panel)
        field.click()
        keys("ctrl+a")
        type_text(name)
        keys("Return")
        program.dialog_is_gone()

    def assertQuartersIn(self, pixmap):
        """A portable pixmap, as other programs write."""
        self.assertEqual(pixmap.split(maxsplit=3)[1:3], [b"%d" % WIDTH, b"%d" % HEIGHT])
        pixels = pixmap[-3 * WIDTH * HEIGHT:]
        found = [tuple(pixels[start:start + 3]) for y in (75, 225) for x in (100, 300)
                 for start in [3 * (y * WIDTH + x)]]
        expected = inverted((RED, GREEN, BLUE, GREY))
        self.assertTrue(all(near(a, b, 5) for a, b in zip(found, expected)), f"{found}, not {expected}")

    def test_other_programs_read_what_was_saved(self):
        def output(*words):
            return subprocess.run([str(word) for word in words], capture_output=True, check=True).stdout
        program = self.start_with_quarters()
        program.pick("color invert")
        self.assertQuarters(program, inverted((RED, GREEN, BLUE, GREY)))
        for form, type_elsewhere in self.FORMATS.items():
            with self.subTest(form):
                self.save_as(program, self.home / f"as {form}", form)
                saved = self.home / f"as {form}.{form}".lower()
                wait(saved.exists, f"{saved}")
                self.assertEqual(output("identify", "-format", "%m", saved), type_elsewhere.encode())
                self.assertQuartersIn(output("convert", f"{type_elsewhere}:{saved}", "-depth", 8, "ppm:-"))
        self.save_as(program, self.home / "as PDF", "PDF")
        saved = self.home / "as PDF.pdf"
        wait(saved.exists, f"{saved}")
        self.assertRegex(output("pdfinfo", saved).decode(), r"Pages: +1\n")
        self.assertQuartersIn(output("pdftoppm", "-scale-to-x", WIDTH, "-scale-to-y", HEIGHT, saved))


main()
