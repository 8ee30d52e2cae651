// Lists that open and close, on pages that were made with Tagsmith.
//
//   var list = new List(visible, width, height);   an open or a closed list, in pixels
//   list.addItem(html);                            a line of the list
//   list.addList(inner, html);                     a line that opens and closes another list
//   list.build(left, top);                         shows the outermost list
//
// The lines are drawn into the page's elements lItem0, lItem1 and so on, from top to bottom.
// `height` is what a line takes at least; one with a long or large text takes what it needs.
// true.gif and false.gif mark an open and a closed list; they lie beside this file.

// Whether the window's width is to be taken from the window, as in one old browser; pages ask it.
var isNav4 = false;

var List = (function () {
  'use strict';

  var INDENT = 20;
  var NARROWEST = 80;
  var STYLE =
    '.list-hidden { display: none }' +
    '.list-shown { position: absolute; display: flex; align-items: baseline;' +
    ' padding-bottom: 4px }' +
    '.list-mark { flex: none; width: ' + INDENT + 'px; padding: 0; border: 0; background: none;' +
    ' text-align: left; font: inherit; cursor: pointer }' +
    '.list-text { flex: auto; min-width: 0; overflow-wrap: break-word }' +
    '.list-topic { cursor: pointer }';

  var root = null;  // The outermost list on the page.
  var lines = [];   // All of its lines, opened or not, from top to bottom.

  // A font that arrives late, a picture in a text, a larger text size: the lines below move.
  var sizes = window.ResizeObserver && new ResizeObserver(arrange);

  function List(visible, width, height) {
    this.visible = visible;
    this.width = width;
    this.height = height;
    this.items = [];
  }

  List.prototype.addItem = function (html) {
    this.items.push({ html: html, list: null });
  };

  List.prototype.addList = function (list, html) {
    this.items.push({ html: html, list: list });
  };

  List.prototype.build = function (left, top) {
    this.left = left;
    this.top = top;
    this.windowWidth = document.body.clientWidth;
    root = this;
    lines.forEach(function (line) {
      line.element.innerHTML = '';
    });
    lines = [];
    addLines(this, null, 0);
    fit(1);
  };

  // `parent` is the line that opens the list, null for the outermost.
  function addLines(list, parent, depth) {
    list.items.forEach(function (item) {
      var line = { item: item, list: list, parent: parent, depth: depth, shown: null };
      line.element = elementFor(lines.length);
      lines.push(line);
      fill(line);
      if (item.list) addLines(item.list, line, depth + 1);
    });
  }

  // A page that was changed by hand may have fewer elements than its list has lines.
  function elementFor(index) {
    var id = 'lItem' + index;
    var element = document.getElementById(id);
    if (!element) {
      element = document.createElement('div');
      element.id = id;
      document.body.appendChild(element);
    }
    return element;
  }

  function fill(line) {
    var text = document.createElement('div');
    text.className = 'list-text';
    text.innerHTML = line.item.html;
    line.element.className = 'list-hidden';
    // Without a mark the text stands where it would beside one.
    line.indent = line.depth * INDENT + (line.item.list ? 0 : INDENT);
    line.element.style.left = root.left + line.indent + 'px';
    line.element.innerHTML = '';
    line.element.appendChild(text);
    if (line.item.list) addMark(line, text);
    if (sizes) sizes.observe(line.element);
  }

  function addMark(line, text) {
    var mark = document.createElement('button');
    mark.type = 'button';
    mark.className = 'list-mark';
    mark.appendChild(document.createElement('img'));
    line.mark = mark;
    text.className += ' list-topic';
    line.element.insertBefore(mark, text);
    text.id = line.element.id + 'Text';
    mark.setAttribute('aria-labelledby', text.id);
    mark.onclick = function () {
      toggle(line);
    };
    text.onclick = function (event) {
      // A link or a field in the text has a click of its own.
      if (!event.target.closest('a, button, input, label, select')) toggle(line);
    };
    showMark(line);
  }

  function showMark(line) {
    var open = line.item.list.visible;
    var picture = line.mark.firstChild;
    picture.src = open ? 'true.gif' : 'false.gif';
    picture.alt = open ? '-' : '+';
    line.mark.setAttribute('aria-expanded', String(open));
  }

  function toggle(line) {
    line.item.list.visible = !line.item.list.visible;
    showMark(line);
    arrange();
  }

  // The page gives widths that suit the window; a window of another width gets others.
  function fit(scale) {
    lines.forEach(function (line) {
      var width = widthOf(line.list, scale) - line.indent;
      line.element.style.width = Math.max(width, NARROWEST) + 'px';
    });
    arrange();
  }

  // A page that is built before it is on show has given no width.
  function widthOf(list, scale) {
    return list.width > 0 ? list.width * scale : 3 * document.body.clientWidth / 4;
  }

  // Writing, then measuring, then writing: a measure between writes would lay out the whole page
  // again for each line.
  function arrange() {
    var shown = lines.filter(show);
    var heights = shown.map(function (line) {
      return Math.max(line.element.getBoundingClientRect().height, line.list.height);
    });
    var top = root.top;
    shown.forEach(function (line, i) {
      line.element.style.top = top + 'px';
      top += heights[i];
    });
    reserve(top);
  }

  // Whether the line is to be seen; its parent has been asked before.
  function show(line) {
    var shown = line.parent ? line.parent.shown && line.list.visible : true;
    if (shown !== line.shown) {
      line.shown = shown;
      line.element.className = shown ? 'list-shown' : 'list-hidden';
    }
    return shown;
  }

  // The page gets as long as the list is, with as much below it as stands at its left.
  function reserve(bottom) {
    var spacer = document.getElementById('Spacer');
    if (!spacer) return;
    spacer.style.visibility = 'hidden';
    spacer.style.top = root.top + 'px';
    spacer.style.width = '1px';
    spacer.style.height = bottom - root.top + root.left + 'px';
  }

  // The pages ask for links that are underlined under the mouse with two properties of the browsers
  // of their day.
  function addUnderlining(kind) {
    var name = 'textDecoration' + kind;
    if (name in CSSStyleDeclaration.prototype) return;
    Object.defineProperty(CSSStyleDeclaration.prototype, name, {
      configurable: true,
      set: function (on) {
        if (on) this.textDecoration = kind.toLowerCase();
      }
    });
  }

  ['Underline', 'None'].forEach(addUnderlining);
  var style = document.createElement('style');
  style.textContent = STYLE;
  document.head.appendChild(style);
  window.addEventListener('resize', function () {
    if (root) fit(root.windowWidth > 0 ? document.body.clientWidth / root.windowWidth : 1);
  });

  return List;
})();
