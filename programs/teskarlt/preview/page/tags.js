// tags.js - the names of the windows, each at its window.
import { Vector3 } from "three";
import { element, one } from "./elements.js";

const LEAST = 48; // pixels from corner to corner of a window: smaller ones have no room for a name
const TURNED_AWAY = 0.12; // cosine between a pane's normal and the way to the viewer

export class Tags {
  constructor(windows) {
    this.tags = windows.map(({ name, middle, size, facing }) => ({
      size,
      middle: new Vector3(...middle),
      facing: new Vector3(...facing),
      text: element("span", { hidden: true }, name),
    }));
    one("#tags").append(...this.tags.map(({ text }) => text));
  }

  // Moves the names to where their windows are seen in a picture of this size; the others are hidden.
  place(camera, width, height) {
    const zoom = (camera.projectionMatrix.elements[5] * height) / 2; // pixels
    for (const { size, middle, facing, text } of this.tags) {
      const place = middle.clone().applyMatrix4(camera.matrixWorldInverse);
      const toViewer = camera.isOrthographicCamera ? camera.getWorldDirection(new Vector3()).negate()
                                                   : camera.position.clone().sub(middle).normalize();
      const pixels = (size * zoom) / (camera.isOrthographicCamera ? 1 : -place.z);
      text.hidden = place.z >= 0 || pixels < LEAST || facing.dot(toViewer) < TURNED_AWAY;
      if (text.hidden) continue;
      const { x, y } = place.applyMatrix4(camera.projectionMatrix);
      text.style.transform = `translate(${((x + 1) * width) / 2}px, ${((1 - y) * height) / 2}px) translate(-50%, -50%)`;
    }
  }
}
