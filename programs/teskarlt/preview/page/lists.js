// lists.js - the buttons of views and windows, and the boxes of layers.
import { element, one } from "./elements.js";

// Marks the button whose view is shown, none after the drawing was turned by hand.
export function markPressed(pressed) {
  for (const button of document.querySelectorAll("button[aria-pressed]"))
    button.setAttribute("aria-pressed", button === pressed);
}

function viewButton(text, go) {
  const button = element("button", { type: "button" }, ...text);
  button.setAttribute("aria-pressed", false);
  button.addEventListener("click", () => {
    markPressed(button);
    go();
  });
  return button;
}

export function listDirections(directions, onChosen) {
  for (const direction of directions)
    one("#directions").append(viewButton([direction.name], () => onChosen(direction)));
}

export function listWindows(windows, onChosen) {
  for (const shown of windows) {
    const text = [element("span", { className: "name" }, shown.name), shown.label || "Window"];
    one("#windows ul").append(element("li", {}, viewButton(text, () => onChosen(shown))));
  }
}

export function listLayers(layers, onChanged) {
  for (const { name, colour, group } of layers) {
    const box = element("input", { type: "checkbox", checked: true });
    box.addEventListener("change", () => {
      group.visible = box.checked;
      onChanged();
    });
    const swatch = element("i", { className: "swatch" });
    swatch.style.background = colour;
    one("#layers ul").append(element("li", {}, element("label", {}, box, swatch, element("span", {}, name))));
  }
}
