/** What the program's catalogue offers, with the sizes of a screen of 390 x 844 points. */
const sizes = {
  systemSmall: [158, 158], systemMedium: [338, 158], systemLarge: [338, 354],
  accessoryCircular: [72, 72], accessoryRectangular: [160, 72], accessoryInline: [234, 26],
};

const kinds = [
  ['Mirune_Widgets5', 'mood', 'Mood Check-In', 'How are you feeling today?', ['systemMedium', 'systemSmall']],
  ['Mirune_Widgets6', 'moods', 'Moods', 'Monthly moods view', ['systemSmall', 'systemLarge']],
  ['Mirune_Widgets2', 'tasks', 'Tasks', 'Keep track of your tasks.',
    ['accessoryCircular', 'accessoryRectangular', 'systemSmall', 'systemMedium']],
  ['Mirune_Widgets3', 'habits', 'Habits', 'Keep track of your habits.',
    ['accessoryCircular', 'accessoryRectangular', 'systemSmall', 'systemMedium']],
  ['Mirune_Widgets4', 'events', 'Events', 'Keep track of your upcoming events and meetings.',
    ['accessoryRectangular', 'accessoryInline', 'systemSmall', 'systemMedium']],
  ['Mirune_Widgets', 'quote', 'Quote of the Day', 'Get daily inspirational quotes.', ['systemMedium']],
  ['Mirune_Widgets7', 'calendar', 'Calendar', 'Monthly Calendar', ['systemSmall']],
  ['Mirune_Widgets8', 'combined', 'Events and Tasks', 'Events and Tasks', ['systemMedium']],
];

export const catalogue = kinds.map(([kind, shortName, displayName, description, families]) => ({
  kind, shortName, displayName, description,
  families: families.map((family) => ({ family, width: sizes[family][0], height: sizes[family][1] })),
}));
