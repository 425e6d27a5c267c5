# test_page.py - the page of a drawing in a browser: it loads from a file, shows the house, and can be turned.
import make_house
import node_tools
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
    browser.prefer()
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
    browser.prefer(motion="no-preference")
    browser.evaluate("document.querySelector('#windows button').click()")
    browser.settle(1200)
    browser.prefer()
    assert shown(browser).share(is_pane) > before + 0.02
    assert browser.evaluate("document.querySelector('#windows button').getAttribute('aria-pressed')") == "true"


def text(browser, selector):
    return browser.evaluate(f"document.querySelector('{selector}').textContent")


def is_shown(browser, selector):
    return browser.evaluate(f"document.querySelector('{selector}').checkVisibility()")


def choose(browser, name):
    """A click on the button of that name; the view changes at once."""
    browser.evaluate(f"[...document.querySelectorAll('button')].find(button => button.textContent === '{name}').click()")
    browser.settle(200)


def tag_place(browser):
    """The middle of the name at the window."""
    return browser.evaluate("(({ x, y, width, height }) => [x + width / 2, y + height / 2])"
                            "(document.querySelector('#tags span').getBoundingClientRect())")


def card_lines(browser):
    return browser.evaluate("Object.fromEntries([...document.querySelectorAll('#card dl div')]"
                            ".map(line => [...line.children].map(cell => cell.textContent)))")


def test_click_on_a_window_shows_its_card(browser):
    assert not is_shown(browser, "#card")
    browser.click(tag_place(browser))
    assert is_shown(browser, "#card") and text(browser, "#card h2") == "W01"
    lines = card_lines(browser)
    assert (lines["Width mm"], lines["Length mm"], lines["Roof pitch °"]) == ("940", "1400", "35.0")
    assert lines["Opening"] == "centre-pivot"
    assert "" not in lines.values()


def test_card_is_closed_by_a_click_beside_windows_or_by_a_key(browser):
    for close in (lambda: browser.click((560, 60)), lambda: browser.press("Escape"),
                  lambda: browser.evaluate("document.querySelector('#card .close').click()")):
        browser.click(tag_place(browser))
        assert is_shown(browser, "#card")
        close()
        assert not is_shown(browser, "#card")


def test_turning_the_house_is_no_click(browser):
    x, y = tag_place(browser)
    browser.drag((x, y), (x + 40, y))
    assert not is_shown(browser, "#card")


def test_window_in_the_list_shows_its_card(browser):
    browser.evaluate("document.querySelector('#windows button').click()")
    assert text(browser, "#card h2") == "W01"


def test_names_stand_at_windows_that_face_the_viewer(browser):
    assert is_shown(browser, "#tags span") and text(browser, "#tags span") == "W01"
    choose(browser, "North")
    assert not is_shown(browser, "#tags span")
    choose(browser, "Plan")
    assert is_shown(browser, "#tags span")
    browser.evaluate("document.querySelector('#names').click()")
    assert not is_shown(browser, "#tags span")


def test_schedule_is_a_tab(browser):
    choose(browser, "Schedule")
    assert is_shown(browser, "#table") and not is_shown(browser, "#view")
    assert text(browser, "#table tbody td") == "W01"
    assert browser.evaluate("document.querySelector('#save').download") == "house-windows.csv"
    assert browser.evaluate("document.querySelector('#save').href").startswith("blob:")


def test_name_in_the_schedule_leads_to_the_window(browser):
    choose(browser, "Schedule")
    choose(browser, "W01")
    assert is_shown(browser, "#view") and is_shown(browser, "#card")


def test_tabs_are_chosen_by_arrow_keys(browser):
    browser.evaluate("document.querySelector('#house-tab').focus()")
    browser.press("ArrowRight")
    assert is_shown(browser, "#table")
    browser.press("ArrowRight")
    assert is_shown(browser, "#view")


def test_names_with_markup_stay_texts(teskarlt, running, house, tmp_path):
    name = "<img src=x onerror=document.title='hit'>"
    teskarlt.done("insert", house, "--at", "2500,1200", "--mark", name)
    teskarlt.done("preview", house, "-o", tmp_path / "out.html", "--window", "1")
    running.open(tmp_path / "out.html")
    for selector in ("#card h2", "#tags span", "#windows .name", "#table tbody td"):
        assert text(running, selector) == name, selector
    assert running.evaluate("document.images.length") == 0 and running.evaluate("document.title") == "house"


def test_elevations_are_parallel_projections(teskarlt, running, tmp_path):
    """A red board before and a blue one of the same size twenty metres behind it, beside it as seen from the south."""
    drawing = Drawing(units="m")
    drawing.layer("RED", 1), drawing.layer("BLUE", 5)
    for name, x, y in (("RED", 0, 0), ("BLUE", 5, 20)):
        drawing.face(name, (x, y, 0), (x + 4, y, 0), (x + 4, y, 4), (x, y, 4))
    teskarlt.done("preview", drawing.save(tmp_path / "in.dxf"), "-o", tmp_path / "out.html")
    running.open(tmp_path / "out.html")
    shares = {}
    for view in ("3D", "South"):
        choose(running, view)
        red = shown(running).share(pictures.is_red)
        blue = shown(running).share(lambda red, green, blue: blue > red + 50 and blue > green + 50)
        shares[view] = blue / red
    assert abs(shares["South"] - 1) < 0.03 < abs(shares["3D"] - 1)


@pytest.mark.parametrize("scheme", ["light", "dark"])
@pytest.mark.parametrize("width, height", [(1440, 900), (820, 1180), (390, 844)])
def test_page_is_accessible(running, page, width, height, scheme):
    running.prefer(scheme)
    running.open(page, width, height)
    try:
        for step in ("document.querySelector('#panel').open = true", "document.querySelector('#windows button').click()",
                     "document.querySelector('#schedule-tab').click()"):
            running.evaluate(step + ";0")
            running.settle(200)
            assert node_tools.findings_of_page(running) == []
    finally:
        running.prefer()


def test_page_is_dark_where_the_user_wants_it(running, page):
    def brightness():
        return sum(map(sum, shown(running).all()))
    running.open(page)
    light = brightness()
    running.prefer("dark")
    running.settle()
    assert brightness() < light * 0.6
    running.prefer()


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
