// tabs.js - the parts of the page, of which one is shown.
import { one } from "./elements.js";

const tabs = () => [...document.querySelectorAll("[role=tab]")];

// Shows the part of that tab.
export function chooseTab(chosen) {
  for (const tab of tabs()) {
    const isChosen = tab === chosen;
    tab.setAttribute("aria-selected", isChosen);
    tab.tabIndex = isChosen ? 0 : -1;
    one(`#${tab.getAttribute("aria-controls")}`).hidden = !isChosen;
  }
  document.body.dataset.part = chosen.getAttribute("aria-controls"); // for the style
}

// Tabs are chosen by a click, or by the arrow keys from one to the next.
export function listenToTabs() {
  const all = tabs();
  all.forEach((tab, index) => {
    tab.addEventListener("click", () => chooseTab(tab));
    tab.addEventListener("keydown", ({ key }) => {
      const step = { ArrowLeft: -1, ArrowRight: 1 }[key];
      if (!step) return;
      const next = all[(index + step + all.length) % all.length];
      chooseTab(next);
      next.focus();
    });
  });
}
