// main.js - shows the model, lets it be turned, and fills the lists of windows and layers.
import { Box3, DirectionalLight, HemisphereLight, Mesh, PCFShadowMap, PerspectiveCamera, PlaneGeometry, Scene,
         ShadowMaterial, Sphere, Spherical, Vector3, WebGLRenderer } from "three";
import { OrbitControls } from "three/addons/controls/OrbitControls.js";
import { SeenSurfaces } from "./lines.js";
import { readModel } from "./model.js";

const FLIGHT = 700; // milliseconds
const NARROW = "(max-width: 640px)"; // as in style.css
const KEY_STEP = 0.09; // radians
const KEY_ZOOM = 1.12;
const DIRECTIONS = { // from where the drawing is seen: x to the east, y up, z to the south
  "3D": [0.62, 0.55, 0.75], Plan: [0, 1, 0.0001], South: [0, 0.06, 1], East: [1, 0.06, 0], North: [0, 0.06, -1],
  West: [-1, 0.06, 0],
};

const one = (selector) => document.querySelector(selector);
const canvas = one("#view");

function element(name, attributes = {}, ...children) {
  const made = Object.assign(document.createElement(name), attributes);
  made.append(...children);
  return made;
}

function modelBytes() {
  return Uint8Array.from(atob(one("#model").textContent), (character) => character.charCodeAt(0));
}

class Viewer {
  constructor(model) {
    this.renderer = new WebGLRenderer({ canvas, antialias: true, alpha: true });
    this.renderer.setPixelRatio(Math.min(devicePixelRatio, 2));
    this.renderer.shadowMap.enabled = true;
    this.renderer.shadowMap.type = PCFShadowMap;
    this.seen = new SeenSurfaces(this.renderer);
    this.scene = new Scene();
    for (const { group } of model.layers) this.scene.add(group);
    this.sphere = new Box3().setFromObject(this.scene).getBoundingSphere(new Sphere());
    this.sphere.radius = Math.max(this.sphere.radius, 0.01);
    this.addLights();
    this.camera = new PerspectiveCamera(32);
    this.controls = new OrbitControls(this.camera, canvas);
    this.controls.maxPolarAngle = Math.PI * 0.495;
    this.controls.minDistance = this.sphere.radius / 50;
    this.controls.maxDistance = this.sphere.radius * 12;
    this.controls.addEventListener("change", () => this.draw());
    this.controls.addEventListener("start", () => this.land());
    addEventListener("resize", () => this.resize());
    canvas.addEventListener("keydown", (event) => this.onKey(event));
    this.resize();
  }

  addLights() {
    const { center, radius } = this.sphere;
    const sun = new DirectionalLight(0xfff4e6, 2.3);
    sun.position.copy(center).add(new Vector3(-0.45, 1.1, 0.8).multiplyScalar(radius * 2));
    sun.target.position.copy(center);
    sun.castShadow = true;
    sun.shadow.mapSize.set(2048, 2048);
    sun.shadow.radius = 4;
    sun.shadow.bias = -0.002;
    Object.assign(sun.shadow.camera, { left: -radius, right: radius, bottom: -radius, top: radius, near: 0, far: radius * 6 });
    const ground = new Mesh(new PlaneGeometry(radius * 20, radius * 20), new ShadowMaterial({ opacity: 0.16 }));
    ground.rotation.x = -Math.PI / 2;
    ground.position.y = -radius / 1000;
    ground.receiveShadow = true;
    this.scene.add(new HemisphereLight(0xf3f8ff, 0xcfc8bb, 1.9), sun, sun.target, ground);
  }

  resize() {
    const { innerWidth: width, innerHeight: height } = window;
    this.renderer.setSize(width, height, false);
    this.camera.aspect = width / height;
    // The middle of the picture is that of the free part of the page.
    const isWide = !matchMedia(NARROW).matches;
    this.camera.setViewOffset(width, height, isWide ? one("aside").offsetWidth / 2 : 0, isWide ? 16 : 24, width, height);
    this.draw();
  }

  // Draws once in the next frame, however often it is asked for.
  draw() {
    this.frame ??= requestAnimationFrame((now) => {
      this.frame = undefined;
      if (this.flight) this.fly(now);
      this.fitDepths();
      this.seen.render(this.scene, this.camera);
      this.renderer.render(this.scene, this.camera);
    });
  }

  // Depths are the finer the farther away they begin.
  fitDepths() {
    const { center, radius } = this.sphere;
    this.camera.near = Math.max(this.camera.position.distanceTo(center) - 2 * radius, radius / 200);
    this.camera.far = this.camera.near + radius * 30;
    this.camera.updateProjectionMatrix();
  }

  // Where to stand to see a ball of this radius from this direction.
  place(target, direction, radius) {
    const half = Math.tan((this.camera.fov * Math.PI) / 360) * Math.min(1, this.camera.aspect);
    return target.clone().addScaledVector(direction.clone().normalize(), radius / Math.sin(Math.atan(half)));
  }

  moveTo(target, position, isAtOnce) {
    const still = isAtOnce || matchMedia("(prefers-reduced-motion: reduce)").matches;
    const { camera, controls } = this;
    const from = new Spherical().setFromVector3(camera.position.clone().sub(controls.target));
    const to = new Spherical().setFromVector3(position.clone().sub(target));
    to.theta = from.theta + Math.atan2(Math.sin(to.theta - from.theta), Math.cos(to.theta - from.theta));
    this.flight = { from, to, fromTarget: controls.target.clone(), toTarget: target, start: still ? -Infinity : undefined };
    this.draw();
  }

  fly(now) {
    const { from, to, fromTarget, toTarget } = this.flight;
    this.flight.start ??= now;
    const share = Math.min(1, (now - this.flight.start) / FLIGHT);
    const eased = share * share * (3 - 2 * share);
    const between = (a, b) => a + (b - a) * eased;
    const at = new Spherical(to.radius * (from.radius / to.radius) ** (1 - eased), between(from.phi, to.phi),
                             between(from.theta, to.theta));
    if (share === 1) this.flight = undefined;
    this.controls.target.lerpVectors(fromTarget, toTarget, eased);
    this.camera.position.setFromSpherical(at).add(this.controls.target);
    this.controls.update();
    this.draw();
  }

  land() {
    this.flight = undefined;
    onMoved();
  }

  showAll(direction, isAtOnce) {
    const { center, radius } = this.sphere;
    const fit = this.camera.aspect < 1 ? 1 : 0.88; // a house is not as high as the ball around it
    this.moveTo(center, this.place(center, new Vector3(...direction), radius * fit), isAtOnce);
  }

  showWindow({ middle, size, facing }, isAtOnce) {
    const target = new Vector3(...middle);
    const [x, y, z] = facing; // seen from lower down, so that the window stands upright
    const direction = new Vector3(x, y * 0.6, Math.hypot(x, z) < 0.01 ? 0.3 : z);
    this.moveTo(target, this.place(target, direction, size * 1.3), isAtOnce);
  }

  turn(theta, phi, zoom) {
    const offset = new Spherical().setFromVector3(this.camera.position.clone().sub(this.controls.target));
    offset.theta += theta;
    offset.phi += phi;
    offset.radius *= zoom;
    this.camera.position.setFromSpherical(offset.makeSafe()).add(this.controls.target);
    this.land();
    this.controls.update();
    this.draw();
  }

  onKey(event) {
    const steps = {
      ArrowLeft: [-KEY_STEP, 0, 1], ArrowRight: [KEY_STEP, 0, 1], ArrowUp: [0, -KEY_STEP, 1], ArrowDown: [0, KEY_STEP, 1],
      "+": [0, 0, 1 / KEY_ZOOM], "=": [0, 0, 1 / KEY_ZOOM], "-": [0, 0, KEY_ZOOM],
    };
    if (event.key === "0") one("#directions button").click();
    else if (event.key in steps) this.turn(...steps[event.key]);
    else return;
    event.preventDefault();
  }
}

// Marks the button whose view is shown, none after the drawing was turned by hand.
function onMoved(pressed) {
  for (const button of document.querySelectorAll("button[aria-pressed]"))
    button.setAttribute("aria-pressed", button === pressed);
}

function flyButton(text, go) {
  const button = element("button", { type: "button" }, ...text);
  button.setAttribute("aria-pressed", false);
  button.addEventListener("click", () => {
    onMoved(button);
    go();
  });
  return button;
}

function fillLists(model, viewer) {
  for (const [name, direction] of Object.entries(DIRECTIONS))
    one("#directions").append(flyButton([name], () => viewer.showAll(direction)));
  for (const shown of model.windows) {
    const text = [element("span", { className: "number" }, String(shown.number)), shown.label || "Window"];
    one("#windows ul").append(element("li", {}, flyButton(text, () => viewer.showWindow(shown))));
  }
  for (const { name, colour, group } of model.layers) {
    const box = element("input", { type: "checkbox", checked: true });
    box.addEventListener("change", () => {
      group.visible = box.checked;
      viewer.draw();
    });
    const swatch = element("i", { className: "swatch" });
    swatch.style.background = colour;
    one("#layers ul").append(element("li", {}, element("label", {}, box, swatch, element("span", {}, name))));
  }
}

function start() {
  const model = readModel(modelBytes());
  const count = model.windows.length;
  one("h1").textContent = model.name;
  one("#summary").textContent = count === 0 ? "" : `${count} roof window${count === 1 ? "" : "s"}`;
  one("#windows").hidden = count === 0;
  one("#panel").open = !matchMedia(NARROW).matches;
  const viewer = new Viewer(model);
  fillLists(model, viewer);
  const number = one("#model").dataset.window;
  const first = number === "" ? undefined : model.windows.find((shown) => String(shown.number) === number);
  viewer.showAll(DIRECTIONS["3D"], true);
  if (first) viewer.showWindow(first, true);
  onMoved(first ? document.querySelectorAll("#windows button")[model.windows.indexOf(first)] : one("#directions button"));
}

try {
  start();
} catch (error) {
  one("#message").textContent = `The drawing cannot be shown here: ${error.message}`;
  one("#message").hidden = false;
  throw error;
}
