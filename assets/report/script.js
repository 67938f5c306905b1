/* Without this script the page can be read as it is; with it, players can be searched and tables sorted. */
(() => {
  'use strict';
  const fold = (text) => text.normalize('NFD').replace(/[\u0300-\u036f]/g, '').toLowerCase().trim();

  const teams = [...document.querySelectorAll('section.team')].map((section) => ({
    section,
    title: fold(section.querySelector('h3').textContent),
    rows: [...section.querySelectorAll('.players tbody tr')].map((row) => ({
      row,
      text: fold(row.cells[1].textContent + ' ' + row.cells[2].textContent),
    })),
  }));
  const form = document.querySelector('.find');
  const box = form.querySelector('input');
  const count = form.querySelector('output');

  const find = () => {
    const wanted = fold(box.value);
    let found = 0;
    for (const { section, title, rows } of teams) {
      const whole = title.includes(wanted);
      let shown = 0;
      for (const { row, text } of rows) {
        const fits = whole || text.includes(wanted);
        row.hidden = !fits;
        shown += Number(fits);
      }
      section.hidden = shown === 0;
      found += shown;
    }
    document.body.classList.toggle('finding', wanted !== '');
    count.value = wanted === '' ? '' : found === 1 ? '1 riga' : found + ' righe';
  };
  form.hidden = false;
  form.addEventListener('submit', (event) => event.preventDefault());
  box.addEventListener('input', find);

  /* Numbers before texts, empty cells last. */
  const compare = (a, b) => {
    const x = Number.parseFloat(a);
    const y = Number.parseFloat(b);
    if (Number.isNaN(x) !== Number.isNaN(y)) return Number.isNaN(x) ? 1 : -1;
    return Number.isNaN(x) ? a.localeCompare(b, 'it') : x - y;
  };
  const sort = (table, heading) => {
    const column = heading.cellIndex;
    const before = heading.getAttribute('aria-sort');
    const down = before ? before === 'ascending' : heading.classList.contains('high');
    for (const other of table.tHead.rows[0].cells) other.removeAttribute('aria-sort');
    heading.setAttribute('aria-sort', down ? 'descending' : 'ascending');
    const body = table.tBodies[0];
    const keyed = [...body.rows].map((row) => [(row.cells[column]?.textContent ?? '').trim(), row]);
    const empty = keyed.filter(([key]) => key === '');
    const full = keyed.filter(([key]) => key !== '');
    full.sort(([a], [b]) => (down ? -compare(a, b) : compare(a, b)));
    body.append(...[...full, ...empty].map(([, row]) => row));
  };
  document.body.classList.add('sortable');
  for (const table of document.querySelectorAll('table')) {
    for (const heading of table.tHead.rows[0].cells) {
      /* No button element: some browsers print those on a table's first page only. */
      const button = document.createElement('span');
      button.setAttribute('role', 'button');
      button.tabIndex = 0;
      button.append(...heading.childNodes);
      heading.append(button);
      button.addEventListener('click', () => sort(table, heading));
      button.addEventListener('keydown', (event) => {
        if (event.key === 'Enter' || event.key === ' ') {
          event.preventDefault();
          sort(table, heading);
        }
      });
    }
  }
})();
