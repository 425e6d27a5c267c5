// card.js - the card of a window: what the schedule says of it.
import { element, one } from "./elements.js";

export class Card {
  // onGo is called with the window that the viewer wants to be taken to.
  constructor(schedule, onGo) {
    this.schedule = schedule;
    one("#card .close").addEventListener("click", () => this.close());
    one("#card .go").addEventListener("click", () => onGo(this.shown));
    addEventListener("keydown", ({ key }) => {
      if (key === "Escape" && this.shown) this.close();
    });
  }

  show(shown) {
    this.shown = shown;
    one("#card h2").textContent = shown.name;
    one("#card dl").replaceChildren(...this.schedule.linesOf(shown).map(
      ([heading, text]) => element("div", {}, element("dt", {}, heading), element("dd", {}, text))));
    one("#card").hidden = false;
  }

  // Whoever was in the card is back at the drawing.
  close() {
    const wasInside = one("#card").contains(document.activeElement);
    this.shown = undefined;
    one("#card").hidden = true;
    if (wasInside) one("#view").focus();
  }
}
