// schedule.js - the schedule of the windows: its table, its file, and what it says of one window.
import { bytesIn, element, one } from "./elements.js";

const textsOf = (cells) => [...cells].map((cell) => cell.textContent);

export class Schedule {
  constructor() {
    const holder = one("#table");
    this.headings = textsOf(holder.querySelectorAll("th"));
    this.rows = [...holder.querySelectorAll("tbody tr")];
    this.numbers = holder.dataset.windows.split(" ").map(Number);
  }

  // [heading, text] for each value that is known of a window, but its name.
  linesOf({ number }) {
    const row = this.rows[this.numbers.indexOf(number)];
    if (!row) return [];
    return textsOf(row.cells).map((text, column) => [this.headings[column], text]).slice(1).filter(([, text]) => text !== "");
  }

  // Makes the names in the table buttons that call back with their window, as far as the drawing shows it.
  makeButtons(windows, onChosen) {
    this.rows.forEach((row, index) => {
      const shown = windows.find(({ number }) => number === this.numbers[index]);
      if (!shown) return;
      const button = element("button", { type: "button", title: "Show it in the house" }, row.cells[0].textContent);
      button.addEventListener("click", () => onChosen(shown));
      row.cells[0].replaceChildren(button);
    });
  }

  // Lets the button save the file that the program has made of the schedule.
  offerFile(name) {
    const link = one("#save");
    link.href = URL.createObjectURL(new Blob([bytesIn("#csv")], { type: "text/csv;charset=utf-8" }));
    link.download = `${name}-windows.csv`;
  }
}
