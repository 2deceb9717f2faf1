"use strict";
(() => {
  const root = document.documentElement;
  const byId = (id) => document.getElementById(id);
  const items = [...document.querySelectorAll(".item")];
  const filter = byId("filter");

  // Each word must be part of what an item is known by.
  const filterItems = () => {
    const words = filter.value.toLowerCase().split(/\s+/).filter(Boolean);
    let shown = 0;
    for (const item of items) {
      const known = item.dataset.words.toLowerCase();
      item.hidden = !words.every((word) => known.includes(word));
      shown += item.hidden ? 0 : 1;
    }
    byId("none").hidden = shown > 0;
    byId("found").textContent = words.length ? `${shown} of ${items.length} items` : "";
  };

  const showState = (state) => {
    for (const cell of document.querySelectorAll(".cell")) {
      cell.hidden = state !== "" && cell.dataset.state !== state;
    }
  };

  const mark = (attribute, value) => {
    if (value) root.dataset[attribute] = value;
    else delete root.dataset[attribute];
  };

  const setZoom = (zoom) => {
    root.style.setProperty("--zoom", zoom);
    mark("zoomed", zoom > 1 ? "yes" : "");
  };

  const onKey = (event) => {
    const typing = event.target.matches("input[type=search], select");
    if (event.ctrlKey || event.altKey || event.metaKey) return;
    if (event.key === "Escape" && event.target === filter) {
      filter.value = "";
      filterItems();
    }
    if (typing) return;
    if (event.key === "/") {
      event.preventDefault();
      filter.focus();
    }
    if (event.key === "m") byId("margins").click();
  };

  const toggle = (button) => {
    const marked = button.closest(".item").classList.toggle("marked");
    button.setAttribute("aria-pressed", String(marked));
  };

  document.querySelector(".controls").hidden = false;
  document.querySelector(".controls").addEventListener("submit", (event) => event.preventDefault());
  filter.addEventListener("input", filterItems);
  byId("state").addEventListener("change", (event) => showState(event.target.value));
  byId("ground").addEventListener("change", (event) => mark("ground", event.target.value));
  byId("zoom").addEventListener("change", (event) => setZoom(event.target.value));
  byId("theme").addEventListener("change", (event) => mark("theme", event.target.value));
  byId("margins").addEventListener("change", (event) => mark("margins", event.target.checked ? "yes" : ""));
  for (const button of document.querySelectorAll(".toggle")) {
    button.hidden = false;
    button.addEventListener("click", () => toggle(button));
  }
  document.addEventListener("keydown", onKey);
  // A browser that reloads a page keeps what stood in its fields.
  filterItems();
})();
