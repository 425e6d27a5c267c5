// main.js - puts the page together: the drawing, its lists, the cards of its windows, and their schedule.
import { Card } from "./card.js";
import { bytesIn, one } from "./elements.js";
import { listDirections, listLayers, listWindows, markPressed } from "./lists.js";
import { readModel } from "./model.js";
import { Schedule } from "./schedule.js";
import { chooseTab, listenToTabs } from "./tabs.js";
import { Tags } from "./tags.js";
import { Viewer } from "./viewer.js";
import { DIRECTIONS } from "./viewpoint.js";

const NARROW = "(max-width: 640px)"; // as in style.css

function sayWhatItIs({ name, windows }) {
  const count = windows.length;
  one("h1").textContent = name;
  one("#summary").textContent = count === 0 ? "" : `${count} roof window${count === 1 ? "" : "s"}`;
  one("#windows").hidden = one("#tabs").hidden = count === 0;
  one("#panel").open = !matchMedia(NARROW).matches;
}

// The window that the page is to open at, if any.
function firstWindow({ windows }) {
  const { window: number } = one("#model").dataset;
  return number === "" ? undefined : windows.find((shown) => String(shown.number) === number);
}

function start() {
  const model = readModel(bytesIn("#model"));
  sayWhatItIs(model);
  const schedule = new Schedule();
  const card = new Card(schedule, (shown) => goTo(shown));
  const viewer = new Viewer(model, new Tags(model.windows), {
    onTouch: () => markPressed(),
    onPick: (shown) => (shown ? card.show(shown) : card.close()),
  });
  const goTo = (shown, isAtOnce = false) => {
    card.show(shown);
    viewer.viewpoint.showWindow(shown, isAtOnce);
    markPressed(document.querySelectorAll("#windows button")[model.windows.indexOf(shown)]);
  };
  listDirections(DIRECTIONS, (direction) => viewer.viewpoint.showAll(direction));
  listWindows(model.windows, (shown) => goTo(shown));
  listLayers(model.layers, () => viewer.draw());
  one("#names").addEventListener("change", ({ target }) => (one("#tags").hidden = !target.checked));
  listenToTabs();
  schedule.offerFile(model.name);
  schedule.makeButtons(model.windows, (shown) => {
    chooseTab(one("[role=tab]"));
    goTo(shown);
  });
  viewer.viewpoint.showAll(DIRECTIONS[0], true);
  markPressed(one("#directions button"));
  const first = firstWindow(model);
  if (first) goTo(first, true);
}

try {
  start();
} catch (error) {
  one("#message").textContent = `The drawing cannot be shown here: ${error.message}`;
  one("#message").hidden = false;
  throw error;
}
