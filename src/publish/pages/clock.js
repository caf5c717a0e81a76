// The game clock, which runs on the device from what the server told last.

// Whole seconds left; null in a game without time.
export function secondsLeft(clock, now) {
  if (!clock || clock.seconds === null || clock.seconds === undefined)
    return null;
  const gone = clock.running ? Math.max(0, now - clock.at) / 1000 : 0;
  return Math.max(0, Math.ceil(clock.seconds - gone - 0.001));
}

export function clockText(seconds) {
  if (seconds === null || seconds === undefined)
    return '';
  const whole = Math.round(seconds);
  return `${Math.floor(whole / 60)}:${String(whole % 60).padStart(2, '0')}`;
}

// Writes the running clock into every element with the attribute data-clock; `textOf` may tell another text.
export function tick(feed, textOf = (left) => clockText(left)) {
  const write = () => {
    if (!feed.game)
      return;
    const text = textOf(secondsLeft(feed.game.clock, feed.now));
    for (const node of document.querySelectorAll('[data-clock]'))
      if (node.textContent !== text)
        node.textContent = text;
  };
  setInterval(write, 100);
}
