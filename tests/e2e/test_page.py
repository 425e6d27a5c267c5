# test_page.py - the page of a drawing in a browser: it loads from a file, shows the house, and can be turned.
import make_house
import pictures
import pytest
from browser import Browser
from conftest import ROOT
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
