# test_page.py - the page of a drawing in a browser: it loads from a file, shows the house, and can be turned.
import make_house
import pictures
import pytest
from browser import Browser
from conftest import ROOT
from plain_dxf import Drawing
from program import Program

DRAWING = (300, 150, 700, 560)  # left, top, right and bottom of the middle of the page


@pytest.fixture(scope="module")
def page(tmp_path_factory):
    """The page of the example house with a window on its south side."""
    folder = tmp_path_factory.mktemp("page")
    program = Program(ROOT, "linux", folder)
    drawing = folder / "house.dxf"
    make_house.house().save(drawing)
    program.done("insert", drawing, "--at", "2500,1200")
    program.done("preview", drawing, "-o", folder / "house.html")
    return folder / "house.html"


@pytest.fixture(scope="module")
def running(tmp_path_factory):
    browser = Browser(tmp_path_factory.mktemp("profile"))
    yield browser
    browser.close()


@pytest.fixture
def browser(running, page):
    running.complaints.clear(), running.requests.clear()
    running.open(page)
    yield running
    assert running.complaints == []


def shown(browser):
    return pictures.pixels(browser.picture())


def test_house_is_shown(browser):
    picture = shown(browser)
    left, top, right, bottom = DRAWING
    colours = {picture.at(x, y) for x in range(left, right, 4) for y in range(top, bottom, 4)}
    assert len(colours) > 20
    assert picture.share(pictures.is_red) > 0.05  # the roof
    assert browser.evaluate("document.querySelector('h1').textContent") == "house"


def test_nothing_is_fetched(browser):
    assert [url for url in browser.requests if not url.startswith(("file:", "data:", "blob:"))] == []


def test_mouse_turns_the_house(browser):
    before = shown(browser)
    browser.drag((400, 350), (600, 300))
    assert pictures.difference(before, shown(browser)) > 0.1


def test_keys_turn_the_house(browser):
    before = shown(browser)
    browser.evaluate("document.querySelector('#view').focus()")
    for _ in range(5):
        browser.press("ArrowLeft")
    turned = shown(browser)
    assert pictures.difference(before, turned) > 0.05
    browser.press("0")
    browser.settle(1000)
    assert pictures.difference(turned, shown(browser)) > 0.05


def test_layer_is_switched_off(browser):
    before = shown(browser).share(pictures.is_red)
    browser.evaluate("document.querySelectorAll('#layers input')[0].click()")  # ROOF_SOUTH
    browser.settle()
    assert shown(browser).share(pictures.is_red) < before / 2


def test_window_in_the_list_is_flown_to(browser):
    def is_pane(red, green, blue):
        return blue > red + 20 and green > red + 5
    before = shown(browser).share(is_pane)
    browser.evaluate("document.querySelector('#windows button').click()")
    browser.settle(1200)
    assert shown(browser).share(is_pane) > before + 0.02
    assert browser.evaluate("document.querySelector('#windows button').getAttribute('aria-pressed')") == "true"


def test_page_fits_a_phone(browser, page):
    browser.open(page, 390, 800, is_phone=True)
    assert browser.evaluate("document.documentElement.scrollWidth") == 390
    assert browser.evaluate("document.querySelector('#panel').open") is False
    assert shown(browser).share(pictures.is_red) > 0.03


def blue_pixels(picture):
    """Those in the middle of the page."""
    left, top, right, bottom = DRAWING
    middle = (picture.at(x, y) for x in range(left, right) for y in range(top, bottom))
    return sum(blue > red + 40 and blue > green + 40 for red, green, blue in middle)


@pytest.mark.parametrize("form", ["face", "closed_polyline"])
def test_wall_tops_do_not_shine_through_the_roof(teskarlt, running, tmp_path, form):
    """A red roof ten metres wide over blue walls of half a metre, whose tops lie in its plane two metres inside."""
    drawing = Drawing(units="m")
    drawing.layer("ROOF", 1), drawing.layer("WALLS", 5)
    draw = getattr(drawing, form)
    corners = [(2, 2), (8, 2), (8, 8), (2, 8)]
    for (x0, y0), (x1, y1) in zip(corners, corners[1:] + corners[:1]):
        draw("WALLS", (x0, y0, 2.5), (x1, y1, 2.5), (x1, y1, 3), (x0, y0, 3))
    draw("ROOF", (0, 0, 3), (10, 0, 3), (10, 10, 3), (0, 10, 3))
    teskarlt.done("preview", drawing.save(tmp_path / "in.dxf"), "-o", tmp_path / "out.html")
    running.open(tmp_path / "out.html")
    assert shown(running).share(pictures.is_red) > 0.05
    assert blue_pixels(shown(running)) == 0
    running.evaluate("[...document.querySelectorAll('#directions button')].find(b => b.textContent === 'South').click()")
    running.settle(1200)
    assert blue_pixels(shown(running)) > 100
