// elements.js - short ways to the elements of the page, and to new ones.
export const one = (selector) => document.querySelector(selector);

// A new element. Texts among its children stay texts, whatever they hold.
export function element(name, attributes = {}, ...children) {
  const made = Object.assign(document.createElement(name), attributes);
  made.append(...children);
  return made;
}

// The bytes that an element holds in base 64.
export function bytesIn(selector) {
  return Uint8Array.from(atob(one(selector).textContent), (character) => character.charCodeAt(0));
}
